// POSIX companion of InContextAliasMgrBase: the executable's path from
// /proc/self/exe.
#include <base/inContextAliasMgrBase.h>

#include <unistd.h>

#include <climits>

namespace Qn {

std::string InContextAliasMgrBase::performGetExecutablePath() {
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path - 1);
    return length > 0 ? std::string(path, static_cast<size_t>(length)) : std::string();
}

}  // namespace Qn
