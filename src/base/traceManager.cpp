#include <base/traceManager.h>

#include <iostream>

namespace Qn {

TraceManager* TraceManager::_manager = nullptr;

TraceManager::TraceManager(int priority) : _priority(priority) { registerManager(this); }

TraceManager::~TraceManager() { unregisterManager(this); }

void TraceManager::print(const char* line) {
    if (line && *line) std::cout << line << std::endl;
}

TraceManager& TraceManager::getInstance() {
    if (!_manager) {
        static TraceManager standardOutput(0);
        _manager = &standardOutput;
    }
    return *_manager;
}

void TraceManager::registerManager(TraceManager* manager) {
    if (!_manager || manager->_priority > _manager->_priority) _manager = manager;
}

void TraceManager::unregisterManager(TraceManager* manager) {
    if (_manager == manager) _manager = nullptr;
}

}  // namespace Qn
