// Qn::LgLockedRegistry: serialises the operations of another registry with a
// mutex, so that producer threads may register their queues at first use
// while a reader thread walks the list. Qn::LgThreadQueues installs one.
#pragma once

#include <memory>
#include <mutex>

#include <base/lgRegistry.h>

namespace Qn {

class QN_BASE_API LgLockedRegistry : public LgRegistry {
  public:
    // Guards registry; a new Qn::LgSimpleRegistry when it is null.
    explicit LgLockedRegistry(std::shared_ptr<LgRegistry> registry = nullptr);

    void registerQueue(LgQueue* queue) override;
    void deregisterQueue(LgQueue* queue) override;
    List<LgQueue*> getQueueList() override;

  private:
    std::mutex _mutex;
    const std::shared_ptr<LgRegistry> _registry;
};

}  // namespace Qn
