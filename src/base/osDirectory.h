// Qn::OsDirectory: a directory element that lists, tests, clears and copies
// its children.
//
// Listings never contain "." or "..", keep the order in which the system
// enumerates (no sorting) and pass each child's full path to the filter.
//
//   OsDirectory logs(OsFilePath::getTempDir() + "logs");
//   auto names = logs.getChildrenPath(OsFileTypes::LeafName, OsLeafFileFilter(".log"));
//
// Failures as OsFile: ExNullFilePath for an empty path, ExSysErrorNative when
// the system refuses (a missing directory included).
#pragma once

#include <functional>

#include <base/objPtr.h>
#include <base/osFile.h>
#include <base/osFileFilter.h>
#include <base/vector.h>

namespace Qn {

class QN_BASE_API OsDirectory : public OsFile {
  public:
    explicit OsDirectory(const OsFilePath& path) : OsFile(path) {}

    // Creates the directory; raises ExSysErrorNative when anything exists at the
    // path already.
    void create(const OsFileTypes::Permissions& permissions);
    // Removes the directory, which must be empty.
    void remove() override;

    // The kept children, as full paths or as leaf names.
    ObjPtrRet<Vector<OsFilePath>> getChildrenPath(OsFileTypes::PathTypes type,
                                                  const OsFileFilter& filter) const;
    // The kept children as new objects: an OsDirectory for a directory, else an
    // OsFile.
    ObjPtrRet<Vector<ObjPtr<OsFile>>> getChildren(const OsFileFilter& filter) const;
    // True when at least one child is kept; stops at the first.
    bool hasChildren(const OsFileFilter& filter) const;
    // Removes the kept children: files, and directories that are empty (a
    // non-empty one raises ExSysErrorNative). Not recursive.
    void removeChildren(const OsFileFilter& filter);

    // Copies the tree into target, or into a new subdirectory of target named
    // after this directory when target is an existing directory. Raises
    // OsFileEx::ExFileExists when target is an existing non-directory.
    void copyTo(const OsFilePath& target) override;
    // Copies source to target: a file as OsFile::copyTo, a directory by creating
    // target (an existing directory is fine) and copying each child into it.
    static void copyHierarchy(const OsFilePath& source, const OsFilePath& target);

  private:
    // Calls visit(name) for each child except "." and ".." until it returns
    // false; each candidate is the directory's path joined with the name.
    void enumerate(
        const OsFileFilter& filter,
        const std::function<bool(OsFilePath&& candidate, const char* name)>& visit) const;
    void performEnumerate(const std::function<bool(const char* name)>& visit) const;
};

}  // namespace Qn
