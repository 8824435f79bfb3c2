#include <base/lgThreadQueues.h>

#include <base/lgLockedRegistry.h>
#include <base/lgLog.h>

namespace Qn {

namespace {

std::shared_ptr<LgQueue::Observer> queueObserver;

// The calling thread's queue; the thread's end hands it over to the reader.
struct ThreadQueue {
    LgQueue* queue = nullptr;
    ~ThreadQueue() {
        if (queue) queue->creatorExit();
    }
};

thread_local ThreadQueue threadQueue;

}  // namespace

void LgThreadQueues::install(std::shared_ptr<LgQueue::Observer> observer) {
    queueObserver = std::move(observer);
    LgLog::setRegistry(std::make_shared<LgLockedRegistry>());
    LgLog::setQueueFunction(&LgThreadQueues::getQueue);
}

LgQueue& LgThreadQueues::getQueue() {
    LgQueue* queue = threadQueue.queue;
    return queue ? *queue : createQueue();
}

LgQueue& LgThreadQueues::createQueue() {
    auto queue = std::make_unique<LgQueue>(getCurrentThreadId());
    if (queueObserver) queue->changeObserver(queueObserver);
    if (const std::shared_ptr<LgRegistry> registry = LgLog::getRegistry()) {
        registry->registerQueue(queue.get());
    }
    threadQueue.queue = queue.release();
    return *threadQueue.queue;
}

unsigned long LgThreadQueues::getCurrentThreadId() { return performGetCurrentThreadId(); }

}  // namespace Qn
