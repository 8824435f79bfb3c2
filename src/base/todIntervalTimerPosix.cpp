// POSIX companion of TodIntervalTimer: the time of day is
// clock_gettime(CLOCK_REALTIME), split into seconds and milliseconds.
#include <base/todIntervalTimer.h>

#include <time.h>

#include <base/exSysErrorANSI.h>

namespace Qn {

TodIntervalTimer::NativeTimer TodIntervalTimer::performGetTimeOfDay() {
    timespec now;
    if (clock_gettime(CLOCK_REALTIME, &now) != 0) throw ExSysErrorANSI(__FILE__, __LINE__);
    return {static_cast<double>(now.tv_sec), static_cast<double>(now.tv_nsec / 1000000)};
}

}  // namespace Qn
