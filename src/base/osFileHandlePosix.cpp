// POSIX companion of OsFileHandle: provides open, create, read, write and close
// on file descriptors, retrying calls that a signal interrupts.
#include <base/osFileHandle.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include <base/exSysErrorPosix.h>
#include <base/osNativePath.h>

namespace Qn {

namespace {

int openRetrying(const char* path, int flags, unsigned mode) {
    OsNativePath native(path);
    int fd;
    do {
        fd = ::open(native.c_str(), flags | O_CLOEXEC, mode);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

}  // namespace

OsFileHandle::Native OsFileHandle::performOpenExisting(const char* path, int mode) {
    static const int access[] = {0, O_RDONLY, O_WRONLY, O_RDWR};
    int fd = openRetrying(path, access[mode], 0);
    if (fd < 0) throw ExSysErrorPosix(__FILE__, __LINE__);
    return fd;
}

OsFileHandle::Native OsFileHandle::performCreate(const char* path,
                                                 const OsFileTypes::Permissions& permissions,
                                                 Creation creation) {
    static const int disposition[] = {O_EXCL, O_TRUNC, O_APPEND};
    int fd = openRetrying(path, O_WRONLY | O_CREAT | disposition[creation],
                          OsNativePath::getMode(permissions, false));
    if (fd >= 0) return fd;
    if (creation == Exclusive && errno == EEXIST) return NoHandle;
    throw ExSysErrorPosix(__FILE__, __LINE__);
}

void OsFileHandle::performClose(Native handle) {
    // The descriptor is gone even when close reports EINTR: never retry.
    if (::close(static_cast<int>(handle)) != 0 && errno != EINTR) {
        throw ExSysErrorPosix(__FILE__, __LINE__);
    }
}

size_t OsFileHandle::performRead(Native handle, void* buffer, size_t size) {
    ssize_t count;
    do {
        count = ::read(static_cast<int>(handle), buffer, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) throw ExSysErrorPosix(__FILE__, __LINE__);
    return static_cast<size_t>(count);
}

void OsFileHandle::performWrite(Native handle, const void* buffer, size_t size) {
    const char* next = static_cast<const char*>(buffer);
    while (size > 0) {
        ssize_t count = ::write(static_cast<int>(handle), next, size);
        if (count < 0) {
            if (errno == EINTR) continue;
            throw ExSysErrorPosix(__FILE__, __LINE__);
        }
        next += count;
        size -= static_cast<size_t>(count);
    }
}

}  // namespace Qn
