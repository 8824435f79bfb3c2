#include <base/timer.h>

namespace Qn {

// The export attribute comes from the extern declarations in the header.
template class Timer<HwIntervalTimer>;
template class Timer<TodIntervalTimer>;

}  // namespace Qn
