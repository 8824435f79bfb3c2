// POSIX companion of LgClock: provides the local calendar time (localtime_r).
#include <base/lgClock.h>

namespace Qn {

std::tm LgClock::performLocalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}

}  // namespace Qn
