// Windows companion of TodIntervalTimer: the time of day is the runtime
// library's 64-bit millisecond query, _ftime64.
#include <base/todIntervalTimer.h>

#include <sys/timeb.h>

namespace Qn {

TodIntervalTimer::NativeTimer TodIntervalTimer::performGetTimeOfDay() {
    __timeb64 now;
    _ftime64(&now);
    return {static_cast<double>(now.time), static_cast<double>(now.millitm)};
}

}  // namespace Qn
