// Windows companion of InContextAliasMgrBase: the executable's path from
// GetModuleFileNameA.
#include <base/inContextAliasMgrBase.h>

#include <windows.h>

namespace Qn {

std::string InContextAliasMgrBase::performGetExecutablePath() {
    char path[MAX_PATH];
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    return length > 0 && length < sizeof path ? std::string(path, length) : std::string();
}

}  // namespace Qn
