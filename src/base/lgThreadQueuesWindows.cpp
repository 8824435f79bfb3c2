// Windows companion of LgThreadQueues: provides the calling thread's id
// (GetCurrentThreadId).
#include <base/lgThreadQueues.h>

#include <windows.h>

namespace Qn {

unsigned long LgThreadQueues::performGetCurrentThreadId() { return ::GetCurrentThreadId(); }

}  // namespace Qn
