// Windows companion of OsFile: provides the exclusive access probe and the
// attributes, size, times (CreateFileA, GetFileAttributesA, GetFileSize,
// GetFileTime), the unbuffered-I/O constraints of the drive
// (GetDiskFreeSpaceA, GetDriveTypeA) and rename. Owners are not reported and
// there are no symbolic links.
#include <base/osFile.h>

#include <windows.h>

#include <cstdio>

#include <base/assertions.h>
#include <base/exSysErrorWindows.h>
#include <base/osDateUtil.h>
#include <base/osFileEx.h>

namespace Qn {

namespace {

// The attributes that make an element special rather than regular.
constexpr DWORD SpecialAttributes = 0x5f04;
static_assert(SpecialAttributes ==
              (FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_SPARSE_FILE |
               FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_OFFLINE |
               FILE_ATTRIBUTE_ENCRYPTED));

HANDLE openForReading(const char* path, DWORD sharing) {
    return CreateFileA(path, GENERIC_READ, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

// Opens path for reading, sharing read and write; raises on failure.
HANDLE openShared(const char* path) {
    HANDLE handle = openForReading(path, FILE_SHARE_READ | FILE_SHARE_WRITE);
    if (handle == INVALID_HANDLE_VALUE) throw ExSysErrorWindows(__FILE__, __LINE__);
    return handle;
}

// Closes handle and raises the system error of the failed call before it.
[[noreturn]] void closeAndThrow(HANDLE handle, const char* file, int line) {
    DWORD error = GetLastError();
    CloseHandle(handle);
    throw ExSysErrorWindows(file, line, error);
}

}  // namespace

bool OsFile::performProbe(const char* path, int mask) {
    DWORD access = mask == OsFileTypes::AccessRead ? GENERIC_READ : GENERIC_WRITE;
    HANDLE handle =
        CreateFileA(path, access, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    CloseHandle(handle);
    return true;
}

OsFileTypes::ElementType OsFile::performGetType(const char* path) {
    DWORD attributes = GetFileAttributesA(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) throw ExSysErrorWindows(__FILE__, __LINE__);
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return OsFileTypes::ElementDirectory;
    return (attributes & SpecialAttributes) != 0 ? OsFileTypes::ElementSpecial
                                                 : OsFileTypes::ElementRegular;
}

bool OsFile::performIsSymLink(const char*) { return false; }

uint32_t OsFile::performGetSize(const char* path) {
    HANDLE handle = openShared(path);
    DWORD high = 0;
    SetLastError(NO_ERROR);
    DWORD low = GetFileSize(handle, &high);
    // 0xFFFFFFFF is also a valid low part: only the error code tells.
    if (low == INVALID_FILE_SIZE && GetLastError() != NO_ERROR) {
        closeAndThrow(handle, __FILE__, __LINE__);
    }
    CloseHandle(handle);
    return low;
}

ArrayPtrRet<char> OsFile::performGetOwner(const char*) {
    ArrayPtrRet<char> owner(new char[1]);
    owner[0] = '\0';
    return owner;
}

OsDateTypes::DateRep OsFile::performGetTime(const char* path, bool modification) {
    HANDLE handle = openShared(path);
    FILETIME access, write;
    if (!GetFileTime(handle, nullptr, &access, &write)) closeAndThrow(handle, __FILE__, __LINE__);
    CloseHandle(handle);
    FILETIME local;
    SYSTEMTIME fields;
    if (!FileTimeToLocalFileTime(modification ? &write : &access, &local)) {
        throw ExSysErrorWindows(__FILE__, __LINE__);
    }
    if (!FileTimeToSystemTime(&local, &fields)) throw ExSysErrorWindows(__FILE__, __LINE__);
    return OsDateUtil::makeTime(fields.wYear, fields.wMonth, fields.wDay, fields.wHour,
                                fields.wMinute, fields.wSecond);
}

OsFileTypes::UnbufferedInfo OsFile::performGetUnbufferedInfo(const char* path) {
    QN_ASSERT_TEXT(path[0] != '\0' && path[1] == ':', "path[1] == ':'");
    char rootPath[4] = {path[0], ':', '\\', '\0'};
    DWORD sectorsPerCluster, bytesPerSector, numFreeClusters, totalClusters;
    QN_ASSERT_TEXT(GetDiskFreeSpaceA(rootPath, &sectorsPerCluster, &bytesPerSector,
                                     &numFreeClusters, &totalClusters),
                   "GetDiskFreeSpace( rootPath, &sectorsPerCluster, &bytesPerSector, "
                   "&numFreeClusters, &totalClusters )");
    if (GetDriveTypeA(rootPath) == DRIVE_REMOTE) {
        QN_THROW(OsFileEx::ExNoRemoteUnbuffered, rootPath);
    }
    return OsFileTypes::UnbufferedInfo{bytesPerSector, bytesPerSector, 0x7FFFFFFF};
}

void OsFile::performRename(const char* from, const char* to) {
    if (std::rename(from, to) != 0) throw ExSysErrorWindows(__FILE__, __LINE__);
}

}  // namespace Qn
