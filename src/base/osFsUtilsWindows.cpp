// Windows companion of OsFsUtils: provides the element kind
// (GetFileAttributesA), directory creation and removal (CreateDirectoryA,
// RemoveDirectoryA) and file deletion (DeleteFileA). Permissions are ignored.
#include <base/osFsUtils.h>

#include <windows.h>

#include <base/exSysErrorWindows.h>

namespace Qn {

OsFsUtils::Kind OsFsUtils::performGetKind(const char* path) {
    DWORD attributes = GetFileAttributesA(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) return Kind::Missing;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::Directory : Kind::Other;
}

bool OsFsUtils::performCreateDir(const char* path, const OsFileTypes::Permissions&) {
    if (CreateDirectoryA(path, nullptr)) return true;
    if (GetLastError() == ERROR_ALREADY_EXISTS) return false;
    throw ExSysErrorWindows(__FILE__, __LINE__);
}

void OsFsUtils::performRemoveDir(const char* path) {
    if (!RemoveDirectoryA(path)) throw ExSysErrorWindows(__FILE__, __LINE__);
}

bool OsFsUtils::performDeleteFile(const char* path) {
    if (DeleteFileA(path)) return true;
    DWORD error = GetLastError();
    if (error == 0 || error == ERROR_FILE_NOT_FOUND) return false;
    throw ExSysErrorWindows(__FILE__, __LINE__, error);
}

}  // namespace Qn
