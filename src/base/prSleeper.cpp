#include <base/prSleeper.h>

#include <algorithm>
#include <cmath>
#include <thread>

#include <base/hwCounter.h>
#include <base/mathFloat.h>
#include <base/objPtr.h>
#include <base/prEx.h>

namespace Qn {

// The export attribute comes from the extern declaration in the header.
template class InSingleton<PrSleeper>;

namespace {

// Bounds of the margin: below the first a system sleep is not worth making;
// above the second the system is too busy for a margin to help.
constexpr double MinMargin = 20e-6;
constexpr double MaxMargin = 20e-3;
constexpr double FirstMargin = 1e-3;

}  // namespace

PrSleeper& PrSleeper::getInstance() { return InSingleton<PrSleeper>::getInstance(); }

void PrSleeper::createInstance() {
    (void)HwCounter::getRateNumerator();
    ObjPtr<PrSleeper> sleeper(new PrSleeper);
    InSingleton<PrSleeper>::create(sleeper.get());
    (void)sleeper.release();
}

void PrSleeper::destroyInstance() { InSingleton<PrSleeper>::destroy(); }

PrSleeper::PrSleeper() : _margin(FirstMargin) {}

PrSleeper::~PrSleeper() = default;

void PrSleeper::sleepSeconds(double seconds) {
    if (!MathFloat::isFinite(seconds)) throw PrEx::ExInvalidDuration(__FILE__, __LINE__, seconds);
    if (seconds <= 0.0) return;
    const uint64_t now = HwCounter::timeStamp();
    // Far beyond any real sleep, and still far from wrapping the counter.
    const double ticks = std::min(seconds / HwCounter::resolution(), 0x1p62);
    sleepUntil(now + static_cast<uint64_t>(std::ceil(ticks)));
}

void PrSleeper::sleepMilliseconds(double milliseconds) { sleepSeconds(milliseconds * 1e-3); }

void PrSleeper::sleepUntil(uint64_t stamp) {
    for (;;) {
        const uint64_t now = HwCounter::timeStamp();
        const double remaining = HwCounter::seconds(now, stamp);
        if (remaining <= 0.0) return;
        const double margin = getMargin();
        if (remaining > margin) {
            const double request = remaining - margin;
            performSleep(request);
            learn(HwCounter::seconds(now, HwCounter::timeStamp()) - request);
        } else {
            std::this_thread::yield();
        }
    }
}

void PrSleeper::learn(double lateness) {
    // Half as much again as the lateness seen, for the wake-ups a little later.
    const double wanted = std::clamp(lateness * 1.5, MinMargin, MaxMargin);
    const double margin = getMargin();
    _margin.store(wanted > margin ? wanted : margin + (wanted - margin) / 16.0,
                  std::memory_order_relaxed);
}

}  // namespace Qn
