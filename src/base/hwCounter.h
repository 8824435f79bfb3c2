// Qn::HwCounter: the process-wide high-resolution counter, with an exact rate.
//
// Every operation makes the counter engine on first use. That first use is not
// meant to race: make it once (the profiling package's start-up does) before
// other threads start; if two threads still race, both get the same engine.
// After that all operations are read-only and thread-safe.
//
//   uint64_t t0 = Qn::HwCounter::timeStamp();
//   work();
//   double elapsed = Qn::HwCounter::seconds(t0, Qn::HwCounter::timeStamp());
#pragma once

#include <atomic>
#include <cstdint>
#include <iosfwd>

#include <base/hwCounterEng.h>

namespace Qn {

class QN_BASE_API HwCounter {
  public:
    // The scaled counter value now.
    static uint64_t timeStamp() { return engine().timeStamp(); }
    // The counter now, in seconds.
    static double seconds() { return engine().seconds(); }
    // (t1 - t0) as a signed difference, in seconds.
    static double seconds(uint64_t t0, uint64_t t1) { return engine().seconds(t0, t1); }
    // Seconds per tick.
    static double resolution() { return engine().resolution(); }
    // The rate in ticks per second is numerator/denominator.
    static int getRateNumerator() { return engine().getRateNumerator(); }
    static int getRateDenominator() { return engine().getRateDenominator(); }
    static void dump(std::ostream& stream) { engine().dump(stream); }

  private:
    friend class HwIntervalTimer;
    friend class DtHwCounterClockSource;

    // Makes the engine if there is none yet and returns it.
    static HwCounterEng& init();
    static HwCounterEng& engine() {
        HwCounterEng* counter = _theHwCounter.load(std::memory_order_acquire);
        return counter != nullptr ? *counter : init();
    }

    // The same operations for callers that have made the engine already.
    static uint64_t timeStampInline() {
        return _theHwCounter.load(std::memory_order_relaxed)->timeStamp();
    }
    static double secondsInline(uint64_t t0, uint64_t t1) {
        return _theHwCounter.load(std::memory_order_relaxed)->seconds(t0, t1);
    }

    // Null until first use; the engine then lives as long as the process.
    static std::atomic<HwCounterEng*> _theHwCounter;
};

}  // namespace Qn
