// Windows companion of LgInterProcessLock: provides the named lock as a named
// mutex (CreateMutexA, WaitForSingleObject, ReleaseMutex, CloseHandle). A mutex
// whose owner died is reported abandoned and is then owned by the waiter.
#include <base/lgInterProcessLock.h>

#include <windows.h>

#include <base/exSysErrorWindows.h>

namespace Qn {

static_assert(sizeof(LgInterProcessLock::Native) >= sizeof(HANDLE));

LgInterProcessLock::Native LgInterProcessLock::performCreate(const char* name) {
    const HANDLE mutex = ::CreateMutexA(nullptr, FALSE, name);
    if (mutex == nullptr) throw ExSysErrorWindows(__FILE__, __LINE__);
    return reinterpret_cast<Native>(mutex);
}

void LgInterProcessLock::performLock(Native handle) {
    const DWORD result = ::WaitForSingleObject(reinterpret_cast<HANDLE>(handle), INFINITE);
    if (result != WAIT_OBJECT_0 && result != WAIT_ABANDONED) {
        throw ExSysErrorWindows(__FILE__, __LINE__);
    }
}

void LgInterProcessLock::performUnlock(Native handle) {
    if (!::ReleaseMutex(reinterpret_cast<HANDLE>(handle))) {
        throw ExSysErrorWindows(__FILE__, __LINE__);
    }
}

void LgInterProcessLock::performClose(Native handle) {
    if (!::CloseHandle(reinterpret_cast<HANDLE>(handle))) {
        throw ExSysErrorWindows(__FILE__, __LINE__);
    }
}

}  // namespace Qn
