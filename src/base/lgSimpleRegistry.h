// Qn::LgSimpleRegistry: the logger's registry of queues. Producers may
// register and deregister their queues from any thread while the reader walks
// them.
//
// The queues are an immutable snapshot behind an atomic pointer: a change
// makes a new snapshot under a mutex of the writers and publishes it; the
// reader loads the pointer and walks the array with no lock and no copy.
// Replaced snapshots wait on a retired list until the reader, at its next
// readQueues(), can no longer be walking them, and frees them there.
//
// Thread-safety: registerQueue, deregisterQueue and getQueueList from any
// thread; readQueues from one reader thread at a time.
#pragma once

#include <atomic>
#include <mutex>

#include <base/lgRegistry.h>

namespace Qn {

class QN_BASE_API LgSimpleRegistry : public LgRegistry {
  public:
    LgSimpleRegistry();
    ~LgSimpleRegistry() override;
    LgSimpleRegistry(const LgSimpleRegistry&) = delete;
    LgSimpleRegistry& operator=(const LgSimpleRegistry&) = delete;

    void registerQueue(LgQueue* queue) override;
    void deregisterQueue(LgQueue* queue) override;
    List<LgQueue*> getQueueList() override;
    std::span<LgQueue* const> readQueues() override;

  private:
    struct Snapshot;
    // Publishes next in place of the current snapshot and retires that one.
    // REQUIRES: _writers held.
    void publish(Snapshot* next);

    std::mutex _writers;
    std::atomic<Snapshot*> _current;
    // Replaced snapshots, a stack pushed by writers and taken whole by the reader.
    std::atomic<Snapshot*> _retired{nullptr};
    // Reader side: a retired snapshot the reader was walking when it took the
    // retired stack; freed at its next call.
    Snapshot* _readerHeld = nullptr;
};

}  // namespace Qn
