#include <base/intervalTimer.h>

namespace Qn {

IntervalTimer::~IntervalTimer() = default;

}  // namespace Qn
