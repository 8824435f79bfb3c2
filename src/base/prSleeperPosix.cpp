// POSIX companion of PrSleeper: the system sleep is clock_nanosleep on the
// monotonic clock, resumed after a signal for the time left.
#include <base/prSleeper.h>

#include <time.h>

#include <cerrno>

namespace Qn {

void PrSleeper::performSleep(double seconds) {
    timespec left;
    left.tv_sec = static_cast<time_t>(seconds);
    left.tv_nsec = static_cast<long>((seconds - static_cast<double>(left.tv_sec)) * 1e9);
    while (clock_nanosleep(CLOCK_MONOTONIC, 0, &left, &left) == EINTR) {
    }
}

}  // namespace Qn
