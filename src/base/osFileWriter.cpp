#include <base/osFileWriter.h>

namespace Qn {

void OsFileWriter::open() {
    checkCanOpen();
    setHandle(create(getPath().getText(), _permissions, _append ? Append : Truncate));
}

void OsFileWriter::write(const void* buffer, size_t size) {
    performWrite(getHandle(), buffer, size);
}

}  // namespace Qn
