// POSIX companion of LgThreadQueues: provides the calling thread's id (gettid)
// and the hook of a thread's end (a thread-specific key whose destructor runs
// when the thread exits).
#include <base/lgThreadQueues.h>

#include <pthread.h>
#include <unistd.h>

#include <base/assertions.h>

namespace Qn {

unsigned long LgThreadQueues::performGetCurrentThreadId() {
    return static_cast<unsigned long>(::gettid());
}

void LgThreadQueues::performWatchThreadExit(LgQueue* queue) {
    static const pthread_key_t key = [] {
        pthread_key_t made;
        const int error = pthread_key_create(&made, &LgThreadQueues::threadEnded);
        QN_SYS_ASSERT(error == 0, error);
        return made;
    }();
    pthread_setspecific(key, queue);
}

}  // namespace Qn
