#include <base/osFileReader.h>

namespace Qn {

void OsFileReader::open() {
    checkCanOpen();
    setHandle(openExisting(getPath().getText(), 1));
}

size_t OsFileReader::read(void* buffer, size_t size) {
    return performRead(getHandle(), buffer, size);
}

}  // namespace Qn
