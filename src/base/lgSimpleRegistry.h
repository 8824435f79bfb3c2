// Qn::LgSimpleRegistry: the logger's default registry of queues, a list without
// a lock. Registering and reading the list must be serialised by the host (for
// example: every queue registered before the reader starts).
#pragma once

#include <base/lgRegistry.h>

namespace Qn {

class QN_BASE_API LgSimpleRegistry : public LgRegistry {
  public:
    void registerQueue(LgQueue* queue) override;
    void deregisterQueue(LgQueue* queue) override;
    List<LgQueue*> getQueueList() override;

  private:
    List<LgQueue*> _queues;
};

}  // namespace Qn
