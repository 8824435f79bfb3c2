#include <base/lgSimpleRegistry.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace Qn {

struct LgSimpleRegistry::Snapshot {
    std::vector<LgQueue*> queues;
    Snapshot* nextRetired = nullptr;
};

LgSimpleRegistry::LgSimpleRegistry() : _current(new Snapshot) {}

LgSimpleRegistry::~LgSimpleRegistry() {
    delete _readerHeld;
    for (Snapshot* s = _retired.load(std::memory_order_acquire); s;) {
        delete std::exchange(s, s->nextRetired);
    }
    delete _current.load(std::memory_order_relaxed);
}

void LgSimpleRegistry::registerQueue(LgQueue* queue) {
    const std::lock_guard<std::mutex> hold(_writers);
    auto* next = new Snapshot{_current.load(std::memory_order_relaxed)->queues};
    next->queues.push_back(queue);
    publish(next);
}

void LgSimpleRegistry::deregisterQueue(LgQueue* queue) {
    const std::lock_guard<std::mutex> hold(_writers);
    const std::vector<LgQueue*>& queues = _current.load(std::memory_order_relaxed)->queues;
    if (std::find(queues.begin(), queues.end(), queue) == queues.end()) return;
    auto* next = new Snapshot;
    std::remove_copy(queues.begin(), queues.end(), std::back_inserter(next->queues), queue);
    publish(next);
}

void LgSimpleRegistry::publish(Snapshot* next) {
    Snapshot* old = _current.exchange(next, std::memory_order_acq_rel);
    old->nextRetired = _retired.load(std::memory_order_relaxed);
    while (!_retired.compare_exchange_weak(old->nextRetired, old, std::memory_order_release,
                                           std::memory_order_relaxed)) {
    }
}

// Under the writers' mutex the current snapshot cannot be retired, so it
// cannot be freed while it is copied.
List<LgQueue*> LgSimpleRegistry::getQueueList() {
    const std::lock_guard<std::mutex> hold(_writers);
    const std::vector<LgQueue*>& queues = _current.load(std::memory_order_relaxed)->queues;
    return List<LgQueue*>(queues.begin(), queues.end());
}

// The reader walks only the snapshot it loads here: every snapshot retired
// before is free, except this one when a writer retired it in between.
std::span<LgQueue* const> LgSimpleRegistry::readQueues() {
    Snapshot* current = _current.load(std::memory_order_acquire);
    delete std::exchange(_readerHeld, nullptr);
    if (_retired.load(std::memory_order_relaxed)) {
        Snapshot* s = _retired.exchange(nullptr, std::memory_order_acquire);
        while (s) {
            Snapshot* next = s->nextRetired;
            if (s == current) {
                _readerHeld = s;
            } else {
                delete s;
            }
            s = next;
        }
    }
    return current->queues;
}

}  // namespace Qn
