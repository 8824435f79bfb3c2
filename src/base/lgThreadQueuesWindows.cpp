// Windows companion of LgThreadQueues: provides the calling thread's id
// (GetCurrentThreadId) and the hook of a thread's end (a fiber-local slot
// whose callback runs while the thread exits, before its handle is signalled).
#include <base/lgThreadQueues.h>

#include <windows.h>

#include <base/exSysErrorWindows.h>

namespace Qn {

unsigned long LgThreadQueues::performGetCurrentThreadId() { return ::GetCurrentThreadId(); }

void LgThreadQueues::performWatchThreadExit(LgQueue* queue) {
    static const DWORD slot = [] {
        const DWORD made = ::FlsAlloc([](void* queue) {
            if (queue) threadEnded(queue);
        });
        if (made == FLS_OUT_OF_INDEXES) throw ExSysErrorWindows(__FILE__, __LINE__);
        return made;
    }();
    if (!::FlsSetValue(slot, queue)) throw ExSysErrorWindows(__FILE__, __LINE__);
}

}  // namespace Qn
