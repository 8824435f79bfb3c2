// POSIX companion of LgInterProcessLock: provides the named lock as an
// advisory whole-file lock (flock) on a file of the temporary directory. The
// kernel drops the lock of a process that dies, so it is never left held.
#include <base/lgInterProcessLock.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include <base/exSysErrorPosix.h>
#include <base/osFilePath.h>
#include <base/osNativePath.h>

namespace Qn {

namespace {

// File names keep to a portable set; every other byte is %XX. A name whose
// encoding would exceed a file name's limit keeps its first part and adds a
// hash of the whole.
std::string encodeLockName(const char* name) {
    static const char hex[] = "0123456789ABCDEF";
    std::string encoded = "qn-lock-";
    uint64_t hash = 14695981039346656037ull;
    for (const char* p = name; *p; ++p) {
        const unsigned char c = static_cast<unsigned char>(*p);
        hash = (hash ^ c) * 1099511628211ull;
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
            c == '.' || c == '_' || c == '-') {
            encoded += static_cast<char>(c);
        } else {
            encoded += '%';
            encoded += hex[c >> 4];
            encoded += hex[c & 0xF];
        }
    }
    constexpr size_t MaxName = 200;
    if (encoded.size() > MaxName) {
        encoded.resize(MaxName - 17);
        encoded += '~';
        for (int shift = 60; shift >= 0; shift -= 4) encoded += hex[(hash >> shift) & 0xF];
    }
    return encoded;
}

}  // namespace

LgInterProcessLock::Native LgInterProcessLock::performCreate(const char* name) {
    const OsFilePath path = OsFilePath::getTempDir() + encodeLockName(name).c_str();
    int fd;
    do {
        fd = ::open(OsNativePath(path.getText()).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) throw ExSysErrorPosix(__FILE__, __LINE__);
    return fd;
}

void LgInterProcessLock::performLock(Native handle) {
    int result;
    do {
        result = ::flock(static_cast<int>(handle), LOCK_EX);
    } while (result != 0 && errno == EINTR);
    if (result != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
}

void LgInterProcessLock::performUnlock(Native handle) {
    if (::flock(static_cast<int>(handle), LOCK_UN) != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
}

void LgInterProcessLock::performClose(Native handle) {
    if (::close(static_cast<int>(handle)) != 0 && errno != EINTR) {
        throw ExSysErrorPosix(__FILE__, __LINE__);
    }
}

}  // namespace Qn
