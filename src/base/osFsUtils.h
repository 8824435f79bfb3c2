// Qn::OsFsUtils: file-system operations on plain path texts, used by OsFile and
// OsDirectory and open to any caller.
//
// Paths are in the library's Windows form (see osFilePath.h). Every function
// raises OsFileEx::ExNullFilePath for a null path, and those that change the
// file system also for an empty one; system failures raise ExSysErrorNative.
// No state: safe from any thread, though the file system may change between
// two calls.
#pragma once

#include <base/osFileTypes.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsFsUtils {
  public:
    // True when the element exists (a symbolic link counts when its target does).
    static bool fileExists(const char* path);
    // True when the element exists and is a directory.
    static bool isDirectory(const char* path);
    // True unless the element exists and is a directory: a missing path counts
    // as a file here (OsFile::isFile raises for it instead).
    static bool isFile(const char* path);

    // Creates a directory; an existing directory is accepted. Raises
    // ExInternalError "A regular file with the same path name exists." when
    // another element occupies the name. The flag is accepted and has no effect.
    static void createDir(const char* path, bool flag = false);
    // Creates a directory and its missing parents; an existing directory is
    // accepted. Raises as createDir for an element in the way.
    static void createDirWithParents(const char* path);
    // Removes an empty directory.
    static void removeDir(const char* path);

    // Creates a file with read and write access and closes it: exclusive asks
    // for a new file only (OsFileEx::ExFileExists when one is there), otherwise
    // an existing file is truncated. Permissions apply to a new file on POSIX.
    static void createFile(const char* path, const OsFileTypes::Permissions& permissions,
                           bool exclusive);
    // Deletes a file; a missing file is not an error.
    static void deleteFile(const char* path);

  private:
    friend class OsDirectory;
    friend class OsFile;

    enum class Kind { Missing, Directory, Other };

    // What is at path, following symbolic links. Never raises: any failure to
    // read the attributes is Missing, with the system's error left in place.
    static Kind performGetKind(const char* path);
    // Creates a directory; false when something already exists at the path
    // (with the system's error left in place), raises for any other failure.
    static bool performCreateDir(const char* path, const OsFileTypes::Permissions& permissions);
    static void performRemoveDir(const char* path);
    // Deletes a file; false when it was missing, raises for any other failure.
    static bool performDeleteFile(const char* path);
};

}  // namespace Qn
