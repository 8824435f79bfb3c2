// POSIX companion of OsFile: provides the element type and symbolic-link test
// (stat, lstat), the non-blocking access probe, size, owner (getpwuid_r), times
// in local calendar fields, the direct-I/O constraints of the volume (statx,
// the device's logical block size, statfs) and rename.
#include <base/osFile.h>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/sysmacros.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <base/exSysErrorPosix.h>
#include <base/osDateUtil.h>
#include <base/osFileEx.h>
#include <base/osNativePath.h>

namespace Qn {

namespace {

struct stat statOrThrow(const char* path) {
    struct stat info;
    if (::stat(OsNativePath(path).c_str(), &info) != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
    return info;
}

ArrayPtrRet<char> copyText(const char* text) {
    size_t size = std::strlen(text) + 1;
    ArrayPtrRet<char> copy(new char[size]);
    std::memcpy(copy.get(), text, size);
    return copy;
}

// The first number in a sysfs file, 0 when it cannot be read.
unsigned readSysNumber(const std::string& file) {
    unsigned value = 0;
    if (std::FILE* in = std::fopen(file.c_str(), "r")) {
        if (std::fscanf(in, "%u", &value) != 1) value = 0;
        std::fclose(in);
    }
    return value;
}

// The logical block size of the device holding a file system, looked up for the
// device itself or, for a partition, its disk; 0 when there is no block device.
unsigned logicalBlockSize(dev_t device) {
    std::string base =
        "/sys/dev/block/" + std::to_string(major(device)) + ":" + std::to_string(minor(device));
    unsigned size = readSysNumber(base + "/queue/logical_block_size");
    return size != 0 ? size : readSysNumber(base + "/../queue/logical_block_size");
}

bool isNetworkFileSystem(unsigned long type) {
    constexpr unsigned long nfs = 0x6969, smb = 0x517B, cifs = 0xFF534D42, smb2 = 0xFE534D42;
    return type == nfs || type == smb || type == cifs || type == smb2;
}

}  // namespace

bool OsFile::performProbe(const char* path, int mask) {
    int access = mask == OsFileTypes::AccessRead ? O_RDONLY : O_WRONLY;
    int fd = ::open(OsNativePath(path).c_str(), access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) return false;
    ::close(fd);
    return true;
}

OsFileTypes::ElementType OsFile::performGetType(const char* path) {
    struct stat info = statOrThrow(path);
    if (S_ISDIR(info.st_mode)) return OsFileTypes::ElementDirectory;
    return S_ISREG(info.st_mode) ? OsFileTypes::ElementRegular : OsFileTypes::ElementSpecial;
}

bool OsFile::performIsSymLink(const char* path) {
    struct stat info;
    if (::lstat(OsNativePath(path).c_str(), &info) != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
    return S_ISLNK(info.st_mode);
}

uint32_t OsFile::performGetSize(const char* path) {
    struct stat info = statOrThrow(path);
    if (S_ISDIR(info.st_mode)) throw ExSysErrorPosix(__FILE__, __LINE__, EISDIR);
    return static_cast<uint32_t>(info.st_size);
}

ArrayPtrRet<char> OsFile::performGetOwner(const char* path) {
    struct stat info = statOrThrow(path);
    char buffer[4096];
    passwd entry;
    passwd* found = nullptr;
    if (getpwuid_r(info.st_uid, &entry, buffer, sizeof buffer, &found) == 0 && found != nullptr) {
        return copyText(found->pw_name);
    }
    return copyText(std::to_string(info.st_uid).c_str());
}

OsDateTypes::DateRep OsFile::performGetTime(const char* path, bool modification) {
    struct stat info = statOrThrow(path);
    time_t seconds = modification ? info.st_mtime : info.st_atime;
    tm local;
    if (localtime_r(&seconds, &local) == nullptr) throw ExSysErrorPosix(__FILE__, __LINE__);
    return OsDateUtil::makeTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                                local.tm_hour, local.tm_min, local.tm_sec);
}

OsFileTypes::UnbufferedInfo OsFile::performGetUnbufferedInfo(const char* path) {
    OsNativePath native(path);
    struct statfs volume;
    if (::statfs(native.c_str(), &volume) != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
    if (isNetworkFileSystem(static_cast<unsigned long>(volume.f_type))) {
        QN_THROW(OsFileEx::ExNoRemoteUnbuffered, path);
    }
    struct statx info;
    if (::statx(AT_FDCWD, native.c_str(), 0, STATX_DIOALIGN, &info) != 0) {
        throw ExSysErrorPosix(__FILE__, __LINE__);
    }
    OsFileTypes::UnbufferedInfo result{0, 0, 0x7FFFFFFF};
    if ((info.stx_mask & STATX_DIOALIGN) != 0 && info.stx_dio_offset_align != 0) {
        result.bufferAlignment = info.stx_dio_mem_align;
        result.offsetAlignment = info.stx_dio_offset_align;
    } else {
        unsigned block = logicalBlockSize(makedev(info.stx_dev_major, info.stx_dev_minor));
        if (block == 0) block = static_cast<unsigned>(volume.f_bsize);
        result.bufferAlignment = block;
        result.offsetAlignment = block;
    }
    return result;
}

void OsFile::performRename(const char* from, const char* to) {
    if (std::rename(OsNativePath(from).c_str(), OsNativePath(to).c_str()) != 0) {
        throw ExSysErrorPosix(__FILE__, __LINE__);
    }
}

}  // namespace Qn
