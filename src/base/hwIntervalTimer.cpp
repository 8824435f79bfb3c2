#include <base/hwIntervalTimer.h>

#include <base/hwCounter.h>

namespace Qn {

HwIntervalTimer::HwIntervalTimer(const char* name) : IntervalTimer(name) { HwCounter::init(); }

void HwIntervalTimer::start() { _start = HwCounter::timeStampInline(); }

void HwIntervalTimer::stop() { _stop = HwCounter::timeStampInline(); }

double HwIntervalTimer::timeInterval() const { return HwCounter::secondsInline(_start, _stop); }

double HwIntervalTimer::sinceStart() const {
    return HwCounter::secondsInline(_start, HwCounter::timeStampInline());
}

}  // namespace Qn
