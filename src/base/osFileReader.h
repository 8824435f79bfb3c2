// Qn::OsFileReader: sequential reading of an existing file.
//
//   OsFileReader reader(path);
//   reader.open();
//   while (size_t n = reader.read(block, sizeof block)) consume(block, n);
//   reader.close();
#pragma once

#include <cstddef>

#include <base/osFileHandle.h>

namespace Qn {

class QN_BASE_API OsFileReader : public OsFileHandle {
  public:
    explicit OsFileReader(const OsFilePath& path) : OsFileHandle(path) {}

    // Opens the file for reading. Raises OsFileEx::ExNullFilePath for an empty
    // path, ExSysErrorNative when the file cannot be opened.
    // REQUIRES: not open.
    void open();
    // Reads at most size bytes into buffer and returns their number; 0 at the
    // end of the file. Raises ExSysErrorNative. REQUIRES: open.
    size_t read(void* buffer, size_t size);
};

}  // namespace Qn
