// Qn::OsFileTypes: the small value types of the file layer.
#pragma once

#include <cstdint>

#include <base/qnExport.h>

namespace Qn {

// Types only: nothing to export.
class OsFileTypes {
  public:
    // The kind of a file-system element. ElementSpecial is anything that is
    // neither a directory nor a regular file: on Windows an element marked
    // system, temporary, sparse, reparse point, compressed, offline or encrypted;
    // on POSIX a FIFO, socket or device.
    enum ElementType {
        ElementRegular = 0,
        ElementDirectory = 1,
        // 2 is reserved and never produced.
        ElementSpecial = 3,
    };

    // The form of the paths a listing returns.
    enum PathTypes {
        FullPath = 0,  // the directory's path joined with the child's name
        LeafName = 1,  // the child's name alone
    };

    // Access masks for owner, group and others, each a combination of Read and
    // Write. Applied as mode bits on POSIX (less the process's umask; a
    // directory that may be read may also be searched); Windows ignores them.
    // The default is read and write for owner and group, nothing for others.
    struct Permissions {
        static constexpr uint32_t Read = 1;
        static constexpr uint32_t Write = 2;

        uint32_t owner = Read | Write;
        uint32_t group = Read | Write;
        uint32_t others = 0;
    };

    // Constraints of unbuffered input and output on an element's volume.
    struct UnbufferedInfo {
        uint32_t bufferAlignment;  // of memory buffers, in bytes
        uint32_t offsetAlignment;  // of file offsets and transfer sizes, in bytes
        uint32_t maxTransfer;      // largest single transfer, in bytes
    };

    // Access masks returned by OsFile::getAccess.
    static constexpr int AccessRead = 1;
    static constexpr int AccessWrite = 2;
};

}  // namespace Qn
