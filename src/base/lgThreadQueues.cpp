#include <base/lgThreadQueues.h>

#include <utility>

#include <base/lgLog.h>

namespace Qn {

namespace {

std::shared_ptr<LgQueue::Observer> queueObserver;

// The calling thread's queue. A plain pointer: the thread's end is watched by
// the platform's own per-thread exit hook, which also runs in a library
// before a join of the thread returns.
thread_local LgQueue* threadQueue = nullptr;

}  // namespace

void LgThreadQueues::install(std::shared_ptr<LgQueue::Observer> observer) {
    queueObserver = std::move(observer);
    LgLog::setQueueFunction(&LgThreadQueues::getQueue);
}

LgQueue& LgThreadQueues::getQueue() { return threadQueue ? *threadQueue : createQueue(); }

LgQueue& LgThreadQueues::createQueue() {
    auto queue = std::make_unique<LgQueue>(getCurrentThreadId());
    if (queueObserver) queue->changeObserver(queueObserver);
    if (const std::shared_ptr<LgRegistry> registry = LgLog::getRegistry()) {
        registry->registerQueue(queue.get());
    }
    performWatchThreadExit(queue.get());
    threadQueue = queue.release();
    return *threadQueue;
}

void LgThreadQueues::releaseQueue() {
    if (LgQueue* queue = std::exchange(threadQueue, nullptr)) {
        performWatchThreadExit(nullptr);
        queue->creatorExit();
    }
}

void LgThreadQueues::threadEnded(void* queue) { static_cast<LgQueue*>(queue)->creatorExit(); }

unsigned long LgThreadQueues::getCurrentThreadId() { return performGetCurrentThreadId(); }

}  // namespace Qn
