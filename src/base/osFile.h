// Qn::OsFile: a file-system element named by a path, with its queries and the
// whole-file operations.
//
// The object holds no open handle: each query opens or asks the system and lets
// go at once, so results may be stale as soon as they are returned. Operations
// that need only a name raise OsFileEx::ExNullFilePath for an empty path;
// queries that need an existing element raise OsFileEx::ExInvalidPath (quoting
// the path) when exists() is false. System failures raise ExSysErrorNative.
//
//   OsFile file(OsFilePath::getTempDir() + "report.txt");
//   if (file.exists() && file.isReadable()) file.copyTo(backupDir);
//
// Not thread-safe: one object, one thread at a time.
#pragma once

#include <cstdint>

#include <base/arrayPtr.h>
#include <base/objPtr.h>
#include <base/osDateTypes.h>
#include <base/osFilePath.h>
#include <base/osFileTypes.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsFile {
  public:
    explicit OsFile(const OsFilePath& path);
    virtual ~OsFile();

    const OsFilePath& getPath() const { return _path; }

    // The owner's user name (on POSIX; the numeric id when the name is unknown);
    // always empty on Windows.
    virtual ArrayPtrRet<char> getOwner() const;
    // The size in bytes, modulo 2 to the 32 for files of 4 GiB or more. A
    // directory has no size: ExSysErrorNative.
    virtual uint32_t getSize() const;
    // Times in local calendar fields.
    virtual ObjPtrRet<OsDateTypes::DateRep> getLastModificationTime() const;
    virtual ObjPtrRet<OsDateTypes::DateRep> getLastAccessTime() const;
    // The alignment and size constraints of unbuffered I/O on the element's
    // volume. Raises OsFileEx::ExNoRemoteUnbuffered on a network volume. On
    // Windows the path must start with a drive letter (ExInternalError
    // "Assertion 'path[1] == ':'' failed." otherwise).
    virtual ObjPtrRet<OsFileTypes::UnbufferedInfo> getUnbufferedInfo() const;

    // OsFileTypes::AccessRead | AccessWrite as far as the element can be opened
    // now; a missing or refused element gives 0, never an exception (beyond
    // ExNullFilePath). The probe never blocks, not even on a FIFO. On Windows
    // it asks for exclusive access, so a file open elsewhere gives 0.
    virtual int getAccess() const;
    virtual bool isReadable() const;
    virtual bool isWritable() const;

    // isFile is true for a regular file only (false for special files).
    virtual bool isFile() const;
    virtual bool isDirectory() const;
    // True for a symbolic link on POSIX; always false on Windows.
    virtual bool isSymLink() const;
    // The kind of element; types follow symbolic links.
    virtual OsFileTypes::ElementType getType() const;
    virtual bool exists() const;

    // Creates the file (see OsFsUtils::createFile).
    void create(const OsFileTypes::Permissions& permissions, bool exclusive);
    // Deletes the file; a missing file raises ExSysErrorNative.
    virtual void remove();
    // Renames or moves the element; on success target becomes its path.
    virtual void renameTo(const OsFilePath& target);
    // Copies the content to target, or into target under this file's base name
    // when target is an existing directory. Raises OsFileEx::ExPathNotWritable
    // when target is an existing file that may not be written. A copy that
    // fails midway leaves a partial target.
    virtual void copyTo(const OsFilePath& target);

  protected:
    void setPath(const OsFilePath& path) { _path = path; }
    // Raise ExNullFilePath for an empty path (checkName), ExInvalidPath when the
    // element does not exist (checkExists).
    void checkName() const;
    void checkExists() const;

    // Opens the existing element: mode 1 reads, 2 writes, 3 both; sharing read
    // and write with other openers. Raises ExSysErrorNative.
    int64_t open(int mode) const;
    // Raises ExSysErrorNative when the system refuses to close.
    void close(int64_t handle) const;

  private:
    int probe(int mask) const;

    // True when the element opens with the access of mask without blocking.
    static bool performProbe(const char* path, int mask);
    static OsFileTypes::ElementType performGetType(const char* path);
    static bool performIsSymLink(const char* path);
    static uint32_t performGetSize(const char* path);
    static ArrayPtrRet<char> performGetOwner(const char* path);
    static OsDateTypes::DateRep performGetTime(const char* path, bool modification);
    static OsFileTypes::UnbufferedInfo performGetUnbufferedInfo(const char* path);
    static void performRename(const char* from, const char* to);

    OsFilePath _path;
};

}  // namespace Qn
