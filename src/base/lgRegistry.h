// Qn::LgRegistry: the set of producer queues the log reader drains.
//
// The registry does not own the queues. Qn::LgSimpleRegistry, the logger's
// own, lets producers register and deregister while the reader walks it; other
// registries serialise their operations as they see fit.
#pragma once

#include <span>
#include <vector>

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

    // Reader side: the queues in registration order, as the reader walks them
    // for one line. The view stays valid until the next call, also when the
    // reader deregisters a queue meanwhile. One reader thread at a time. The
    // default copies getQueueList() into a buffer of the registry;
    // Qn::LgSimpleRegistry answers without a lock and without a copy.
    virtual std::span<LgQueue* const> readQueues();

  private:
    std::vector<LgQueue*> _readerCopy;
};

}  // namespace Qn
