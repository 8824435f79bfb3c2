// POSIX companion of OsFsUtils: provides the element kind (stat), directory
// creation and removal (mkdir, rmdir) and file deletion (unlink).
#include <base/osFsUtils.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <base/exSysErrorPosix.h>
#include <base/osNativePath.h>

namespace Qn {

OsFsUtils::Kind OsFsUtils::performGetKind(const char* path) {
    struct stat info;
    if (::stat(OsNativePath(path).c_str(), &info) != 0) return Kind::Missing;
    return S_ISDIR(info.st_mode) ? Kind::Directory : Kind::Other;
}

bool OsFsUtils::performCreateDir(const char* path, const OsFileTypes::Permissions& permissions) {
    if (::mkdir(OsNativePath(path).c_str(), OsNativePath::getMode(permissions, true)) == 0) {
        return true;
    }
    if (errno == EEXIST) return false;
    throw ExSysErrorPosix(__FILE__, __LINE__);
}

void OsFsUtils::performRemoveDir(const char* path) {
    if (::rmdir(OsNativePath(path).c_str()) != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
}

bool OsFsUtils::performDeleteFile(const char* path) {
    if (::unlink(OsNativePath(path).c_str()) == 0) return true;
    if (errno == ENOENT) return false;
    throw ExSysErrorPosix(__FILE__, __LINE__);
}

}  // namespace Qn
