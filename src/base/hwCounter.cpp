#include <base/hwCounter.h>

namespace Qn {

std::atomic<HwCounterEng*> HwCounter::_theHwCounter{nullptr};

HwCounterEng& HwCounter::init() {
    HwCounterEng* counter = _theHwCounter.load(std::memory_order_acquire);
    if (counter != nullptr) return *counter;
    ObjPtr<HwCounterEng> made = HwCounterEng::create();
    // A thread that lost the race keeps the winner's engine (they are identical).
    if (_theHwCounter.compare_exchange_strong(counter, made.get(), std::memory_order_acq_rel)) {
        return *made.release();
    }
    return *counter;
}

}  // namespace Qn
