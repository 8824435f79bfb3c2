#include <base/osDirectory.h>

#include <cstring>
#include <utility>

#include <base/exSysErrorNative.h>
#include <base/osFileEx.h>
#include <base/osFsUtils.h>
#include <base/osPassThroughFilter.h>

namespace Qn {

void OsDirectory::create(const OsFileTypes::Permissions& permissions) {
    checkName();
    if (!OsFsUtils::performCreateDir(getPath().getText(), permissions)) QN_THROW(ExSysErrorNative);
}

void OsDirectory::remove() {
    checkName();
    OsFsUtils::removeDir(getPath().getText());
}

void OsDirectory::enumerate(
    const OsFileFilter& filter,
    const std::function<bool(OsFilePath&& candidate, const char* name)>& visit) const {
    checkName();
    performEnumerate([&](const char* name) {
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) return true;
        // A POSIX name that holds a backslash cannot be named by a path: the
        // backslash would read as a separator.
        if (std::strchr(name, '\\') != nullptr) return true;
        OsFilePath candidate = getPath() + name;
        return !filter.filter(candidate) || visit(std::move(candidate), name);
    });
}

ObjPtrRet<Vector<OsFilePath>> OsDirectory::getChildrenPath(OsFileTypes::PathTypes type,
                                                           const OsFileFilter& filter) const {
    ObjPtrRet<Vector<OsFilePath>> children(new Vector<OsFilePath>);
    enumerate(filter, [&](OsFilePath&& candidate, const char* name) {
        if (type == OsFileTypes::FullPath) {
            children->push_back(std::move(candidate));
        } else {
            children->emplace_back(name);
        }
        return true;
    });
    return children;
}

ObjPtrRet<Vector<ObjPtr<OsFile>>> OsDirectory::getChildren(const OsFileFilter& filter) const {
    ObjPtrRet<Vector<ObjPtr<OsFile>>> children(new Vector<ObjPtr<OsFile>>);
    enumerate(filter, [&](OsFilePath&& candidate, const char*) {
        if (OsFsUtils::isDirectory(candidate.getText())) {
            children->emplace_back(new OsDirectory(candidate));
        } else {
            children->emplace_back(new OsFile(candidate));
        }
        return true;
    });
    return children;
}

bool OsDirectory::hasChildren(const OsFileFilter& filter) const {
    bool found = false;
    enumerate(filter, [&](OsFilePath&&, const char*) {
        found = true;
        return false;
    });
    return found;
}

void OsDirectory::removeChildren(const OsFileFilter& filter) {
    // Listed first: removing entries while the system enumerates them may make
    // it skip or repeat some.
    ObjPtr<Vector<OsFilePath>> children = getChildrenPath(OsFileTypes::FullPath, filter);
    for (const OsFilePath& child : *children) {
        if (OsFsUtils::isDirectory(child.getText())) {
            OsFsUtils::removeDir(child.getText());
        } else {
            OsFsUtils::deleteFile(child.getText());
        }
    }
}

void OsDirectory::copyTo(const OsFilePath& target) {
    checkName();
    if (target.isEmpty()) QN_THROW(OsFileEx::ExNullFilePath);
    OsFilePath destination = target;
    if (OsFsUtils::fileExists(target.getText())) {
        if (!OsFsUtils::isDirectory(target.getText())) QN_THROW(OsFileEx::ExFileExists);
        destination += getPath().getBaseName().getText();
    }
    copyHierarchy(getPath(), destination);
}

void OsDirectory::copyHierarchy(const OsFilePath& source, const OsFilePath& target) {
    if (!OsFsUtils::isDirectory(source.getText())) {
        OsFile(source).copyTo(target);
        return;
    }
    OsFsUtils::createDir(target.getText());
    ObjPtr<Vector<OsFilePath>> names =
        OsDirectory(source).getChildrenPath(OsFileTypes::LeafName, OsPassThroughFilter());
    for (const OsFilePath& name : *names) {
        copyHierarchy(source + name.getText(), target + name.getText());
    }
}

}  // namespace Qn
