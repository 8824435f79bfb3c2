// Windows companion of LgClock: provides the local calendar time (localtime_s).
#include <base/lgClock.h>

namespace Qn {

std::tm LgClock::performLocalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_s(&local, &now);
    return local;
}

}  // namespace Qn
