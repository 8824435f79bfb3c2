// Windows companion of OsFileHandle: provides open, create, read, write and
// close on HANDLEs (CreateFileA, ReadFile, WriteFile, CloseHandle).
#include <base/osFileHandle.h>

#include <windows.h>

#include <cstdint>

#include <base/exSysErrorWindows.h>

namespace Qn {

namespace {

// INVALID_HANDLE_VALUE is the handle -1, which maps onto NoHandle.
static_assert(OsFileHandle::NoHandle == -1);

HANDLE toHandle(OsFileHandle::Native handle) {
    return reinterpret_cast<HANDLE>(static_cast<intptr_t>(handle));
}

OsFileHandle::Native fromHandle(HANDLE handle) {
    return static_cast<OsFileHandle::Native>(reinterpret_cast<intptr_t>(handle));
}

// The largest transfer of one ReadFile or WriteFile.
constexpr size_t MaxTransfer = 0x7FFFFFFF;

}  // namespace

OsFileHandle::Native OsFileHandle::performOpenExisting(const char* path, int mode) {
    DWORD access = ((mode & 1) ? GENERIC_READ : 0) | ((mode & 2) ? GENERIC_WRITE : 0);
    HANDLE handle = CreateFileA(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) throw ExSysErrorWindows(__FILE__, __LINE__);
    return fromHandle(handle);
}

OsFileHandle::Native OsFileHandle::performCreate(const char* path, const OsFileTypes::Permissions&,
                                                 Creation creation) {
    static const DWORD disposition[] = {CREATE_NEW, CREATE_ALWAYS, OPEN_ALWAYS};
    HANDLE handle =
        CreateFileA(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    disposition[creation], FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        DWORD error = GetLastError();
        if (creation == Exclusive && error == ERROR_FILE_EXISTS) return NoHandle;
        throw ExSysErrorWindows(__FILE__, __LINE__, error);
    }
    if (creation == Append && !SetFilePointerEx(handle, LARGE_INTEGER{}, nullptr, FILE_END)) {
        DWORD error = GetLastError();
        CloseHandle(handle);
        throw ExSysErrorWindows(__FILE__, __LINE__, error);
    }
    return fromHandle(handle);
}

void OsFileHandle::performClose(Native handle) {
    if (!CloseHandle(toHandle(handle))) throw ExSysErrorWindows(__FILE__, __LINE__);
}

size_t OsFileHandle::performRead(Native handle, void* buffer, size_t size) {
    DWORD count = 0;
    DWORD wanted = static_cast<DWORD>(size < MaxTransfer ? size : MaxTransfer);
    if (!ReadFile(toHandle(handle), buffer, wanted, &count, nullptr)) {
        throw ExSysErrorWindows(__FILE__, __LINE__);
    }
    return count;
}

void OsFileHandle::performWrite(Native handle, const void* buffer, size_t size) {
    const char* next = static_cast<const char*>(buffer);
    while (size > 0) {
        DWORD count = 0;
        DWORD wanted = static_cast<DWORD>(size < MaxTransfer ? size : MaxTransfer);
        if (!WriteFile(toHandle(handle), next, wanted, &count, nullptr)) {
            throw ExSysErrorWindows(__FILE__, __LINE__);
        }
        next += count;
        size -= count;
    }
}

}  // namespace Qn
