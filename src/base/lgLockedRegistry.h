// Qn::LgLockedRegistry: a registry of queues whose operations hold a mutex, so
// that producer threads may register their queues at first use while a reader
// thread walks the list. Qn::LgThreadQueues installs one.
#pragma once

#include <mutex>

#include <base/lgSimpleRegistry.h>

namespace Qn {

class QN_BASE_API LgLockedRegistry : public LgSimpleRegistry {
  public:
    void registerQueue(LgQueue* queue) override;
    void deregisterQueue(LgQueue* queue) override;
    List<LgQueue*> getQueueList() override;

  private:
    std::mutex _mutex;
};

}  // namespace Qn
