#include <base/lgLockedRegistry.h>

namespace Qn {

void LgLockedRegistry::registerQueue(LgQueue* queue) {
    const std::lock_guard<std::mutex> hold(_mutex);
    LgSimpleRegistry::registerQueue(queue);
}

void LgLockedRegistry::deregisterQueue(LgQueue* queue) {
    const std::lock_guard<std::mutex> hold(_mutex);
    LgSimpleRegistry::deregisterQueue(queue);
}

List<LgQueue*> LgLockedRegistry::getQueueList() {
    const std::lock_guard<std::mutex> hold(_mutex);
    return LgSimpleRegistry::getQueueList();
}

}  // namespace Qn
