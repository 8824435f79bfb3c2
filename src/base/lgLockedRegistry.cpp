#include <base/lgLockedRegistry.h>

#include <base/lgSimpleRegistry.h>

namespace Qn {

LgLockedRegistry::LgLockedRegistry(std::shared_ptr<LgRegistry> registry)
    : _registry(registry ? std::move(registry) : std::make_shared<LgSimpleRegistry>()) {}

void LgLockedRegistry::registerQueue(LgQueue* queue) {
    const std::lock_guard<std::mutex> hold(_mutex);
    _registry->registerQueue(queue);
}

void LgLockedRegistry::deregisterQueue(LgQueue* queue) {
    const std::lock_guard<std::mutex> hold(_mutex);
    _registry->deregisterQueue(queue);
}

List<LgQueue*> LgLockedRegistry::getQueueList() {
    const std::lock_guard<std::mutex> hold(_mutex);
    return _registry->getQueueList();
}

}  // namespace Qn
