#include <base/lgRegistry.h>

namespace Qn {

LgRegistry::~LgRegistry() = default;

std::span<LgQueue* const> LgRegistry::readQueues() {
    const List<LgQueue*> queues = getQueueList();
    _readerCopy.assign(queues.begin(), queues.end());
    return _readerCopy;
}

}  // namespace Qn
