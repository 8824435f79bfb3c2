// Qn::LgRegistry: the set of producer queues the log reader drains.
//
// The registry does not own the queues. Qn::LgSimpleRegistry has no lock;
// Qn::LgLockedRegistry serialises its operations for producers that register
// their queues while a reader runs.
#pragma once

#include <base/list.h>
#include <base/qnExport.h>

namespace Qn {

class LgQueue;

class QN_BASE_API LgRegistry {
  public:
    virtual ~LgRegistry();
    // Adds a queue at the end.
    virtual void registerQueue(LgQueue* queue) = 0;
    // Removes every occurrence of the queue.
    virtual void deregisterQueue(LgQueue* queue) = 0;
    // A copy of the queues in registration order.
    virtual List<LgQueue*> getQueueList() = 0;
};

}  // namespace Qn
