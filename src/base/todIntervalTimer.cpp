#include <base/todIntervalTimer.h>

namespace Qn {

void TodIntervalTimer::start() { _start = performGetTimeOfDay(); }

void TodIntervalTimer::stop() { _stop = performGetTimeOfDay(); }

double TodIntervalTimer::timeInterval() const { return getInterval(_start, _stop); }

double TodIntervalTimer::sinceStart() const { return getInterval(_start, performGetTimeOfDay()); }

}  // namespace Qn
