#include <base/osFsUtils.h>

#include <base/exInternalError.h>
#include <base/exSysErrorNative.h>
#include <base/osFileEx.h>
#include <base/osFileHandle.h>
#include <base/osFilePath.h>

namespace Qn {

namespace {

void checkPointer(const char* path) {
    if (path == nullptr) QN_THROW(OsFileEx::ExNullFilePath);
}

void checkName(const char* path) {
    if (path == nullptr || path[0] == '\0') QN_THROW(OsFileEx::ExNullFilePath);
}

// The mode of directories created without explicit permissions: everything the
// process's umask lets through.
OsFileTypes::Permissions openPermissions() {
    constexpr uint32_t all = OsFileTypes::Permissions::Read | OsFileTypes::Permissions::Write;
    return OsFileTypes::Permissions{all, all, all};
}

}  // namespace

bool OsFsUtils::fileExists(const char* path) {
    checkPointer(path);
    return performGetKind(path) != Kind::Missing;
}

bool OsFsUtils::isDirectory(const char* path) {
    checkPointer(path);
    return performGetKind(path) == Kind::Directory;
}

bool OsFsUtils::isFile(const char* path) {
    checkPointer(path);
    return performGetKind(path) != Kind::Directory;
}

void OsFsUtils::createDir(const char* path, bool) {
    checkName(path);
    if (performCreateDir(path, openPermissions())) return;
    switch (performGetKind(path)) {
        case Kind::Directory:
            return;
        case Kind::Missing:
            QN_THROW(ExSysErrorNative);
        case Kind::Other:
            QN_THROW(ExInternalError, "A regular file with the same path name exists.");
    }
}

void OsFsUtils::createDirWithParents(const char* path) {
    checkName(path);
    if (performGetKind(path) == Kind::Directory) return;
    // The parent of a root ("C:\" gives "C:", the current directory) exists, so
    // the recursion ends at the latest there.
    OsFilePath parent = OsFilePath(path).getDirectoryName();
    if (!parent.isEmpty() && performGetKind(parent.getText()) != Kind::Directory) {
        createDirWithParents(parent.getText());
    }
    createDir(path);
}

void OsFsUtils::removeDir(const char* path) {
    checkName(path);
    performRemoveDir(path);
}

void OsFsUtils::createFile(const char* path, const OsFileTypes::Permissions& permissions,
                           bool exclusive) {
    checkName(path);
    OsFileHandle::Native handle = OsFileHandle::create(
        path, permissions, exclusive ? OsFileHandle::Exclusive : OsFileHandle::Truncate);
    if (handle == OsFileHandle::NoHandle) QN_THROW(OsFileEx::ExFileExists);
    OsFileHandle::closeNative(handle);
}

void OsFsUtils::deleteFile(const char* path) {
    checkName(path);
    performDeleteFile(path);
}

}  // namespace Qn
