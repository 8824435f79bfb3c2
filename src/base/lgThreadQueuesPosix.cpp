// POSIX companion of LgThreadQueues: provides the calling thread's id (gettid).
#include <base/lgThreadQueues.h>

#include <unistd.h>

namespace Qn {

unsigned long LgThreadQueues::performGetCurrentThreadId() {
    return static_cast<unsigned long>(::gettid());
}

}  // namespace Qn
