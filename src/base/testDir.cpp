#include <base/testDir.h>

#include <base/inEnv.h>
#include <base/osFsUtils.h>

namespace Qn {

namespace {

OsFilePath computeDefaultPath() {
    const char* named = InEnv::getText("QN_TEST_DIR");
    return named != nullptr && *named != '\0' ? OsFilePath(named) : OsFilePath::getTempDir();
}

}  // namespace

const OsFilePath& TestDir::getDefaultPath() {
    static const OsFilePath path = computeDefaultPath();
    return path;
}

OsFilePath TestDir::create(const OsFilePath& path) {
    OsFsUtils::createDirWithParents(path.getText());
    return path;
}

}  // namespace Qn
