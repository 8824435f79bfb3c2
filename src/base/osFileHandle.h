// Qn::OsFileHandle: an open file of the operating system, the common part of
// OsFileReader and OsFileWriter, and the native open and close that OsFile and
// OsFsUtils use.
//
// Handles are 64-bit numbers (a file descriptor on POSIX, a HANDLE on Windows);
// NoHandle marks none. An object owns at most one open handle and closes it at
// destruction. Not thread-safe: one object, one thread at a time.
#pragma once

#include <cstdint>

#include <base/osFilePath.h>
#include <base/osFileTypes.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsFileHandle {
  public:
    using Native = int64_t;
    static constexpr Native NoHandle = -1;

    // How create() treats an existing file.
    enum Creation {
        Exclusive,  // refuse it
        Truncate,   // empty it
        Append,     // keep it, writes go to its end
    };

    // Opens an existing file, sharing read and write with other openers: mode 1
    // reads, 2 writes, 3 both. Raises ExSysErrorNative.
    static Native openExisting(const char* path, int mode);
    // Opens a file for writing, creating it with permissions when it is missing.
    // Returns NoHandle when creation is Exclusive and the file exists; raises
    // ExSysErrorNative for any other failure.
    static Native create(const char* path, const OsFileTypes::Permissions& permissions,
                         Creation creation);
    // Raises ExSysErrorNative when the system refuses to close.
    static void closeNative(Native handle);

    OsFileHandle(const OsFileHandle&) = delete;
    OsFileHandle& operator=(const OsFileHandle&) = delete;
    // Closes an open handle; a failure to close is ignored here.
    virtual ~OsFileHandle();

    const OsFilePath& getPath() const { return _path; }
    bool isOpen() const { return _handle != NoHandle; }
    // Closes the handle (no effect when none is open). The handle is released
    // even when the system reports a failure, which raises ExSysErrorNative.
    void close();

  protected:
    explicit OsFileHandle(const OsFilePath& path) : _path(path) {}

    // Raises OsFileEx::ExNullFilePath for an empty path. REQUIRES: not open.
    void checkCanOpen() const;
    void setHandle(Native handle) { _handle = handle; }
    // REQUIRES: open.
    Native getHandle() const;

    // Reads at most size bytes; 0 at the end of the file.
    static size_t performRead(Native handle, void* buffer, size_t size);
    // Writes all size bytes.
    static void performWrite(Native handle, const void* buffer, size_t size);

  private:
    static Native performOpenExisting(const char* path, int mode);
    static Native performCreate(const char* path, const OsFileTypes::Permissions& permissions,
                                Creation creation);
    static void performClose(Native handle);

    OsFilePath _path;
    Native _handle = NoHandle;
};

}  // namespace Qn
