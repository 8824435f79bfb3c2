#include <base/timerBase.h>

#include <ostream>

namespace Qn {

TimerBase::~TimerBase() = default;

std::ostream& operator<<(std::ostream& stream, const TimerBase& timer) {
    return stream << timer.getName() << ": " << timer.elapsed() << " seconds";
}

}  // namespace Qn
