// Qn::OsFileWriter: sequential writing of a file, which is created when missing
// and otherwise truncated, or appended to when asked.
//
//   OsFileWriter writer(path, OsFileTypes::Permissions{}, false);
//   writer.open();
//   writer.write(text, length);
//   writer.close();
#pragma once

#include <cstddef>

#include <base/osFileHandle.h>

namespace Qn {

class QN_BASE_API OsFileWriter : public OsFileHandle {
  public:
    // permissions apply to a file the writer creates (on POSIX); with append
    // an existing file keeps its content and writes go to its end.
    explicit OsFileWriter(const OsFilePath& path, const OsFileTypes::Permissions& permissions = {},
                          bool append = false)
        : OsFileHandle(path), _permissions(permissions), _append(append) {}

    // Opens the file for writing. Raises OsFileEx::ExNullFilePath for an empty
    // path, ExSysErrorNative when the file cannot be opened or created.
    // REQUIRES: not open.
    void open();
    // Writes all size bytes of buffer. Raises ExSysErrorNative. REQUIRES: open.
    void write(const void* buffer, size_t size);

  private:
    OsFileTypes::Permissions _permissions;
    bool _append;
};

}  // namespace Qn
