#include <base/osFileHandle.h>

#include <base/assertions.h>
#include <base/osFileEx.h>

namespace Qn {

OsFileHandle::Native OsFileHandle::openExisting(const char* path, int mode) {
    QN_ASSERT(mode >= 1 && mode <= 3);
    return performOpenExisting(path, mode);
}

OsFileHandle::Native OsFileHandle::create(const char* path,
                                          const OsFileTypes::Permissions& permissions,
                                          Creation creation) {
    return performCreate(path, permissions, creation);
}

void OsFileHandle::closeNative(Native handle) {
    QN_ASSERT(handle != NoHandle);
    performClose(handle);
}

OsFileHandle::~OsFileHandle() {
    if (!isOpen()) return;
    try {
        performClose(_handle);
    } catch (const ExBase&) {
        // Nothing to tell a destructor's caller; close() reports failures.
    }
}

void OsFileHandle::close() {
    if (!isOpen()) return;
    Native handle = _handle;
    _handle = NoHandle;
    performClose(handle);
}

void OsFileHandle::checkCanOpen() const {
    QN_ASSERT(!isOpen());
    if (_path.isEmpty()) QN_THROW(OsFileEx::ExNullFilePath);
}

OsFileHandle::Native OsFileHandle::getHandle() const {
    QN_ASSERT(isOpen());
    return _handle;
}

}  // namespace Qn
