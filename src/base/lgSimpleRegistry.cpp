#include <base/lgSimpleRegistry.h>

namespace Qn {

void LgSimpleRegistry::registerQueue(LgQueue* queue) { _queues.push_back(queue); }

void LgSimpleRegistry::deregisterQueue(LgQueue* queue) { _queues.remove(queue); }

List<LgQueue*> LgSimpleRegistry::getQueueList() { return _queues; }

}  // namespace Qn
