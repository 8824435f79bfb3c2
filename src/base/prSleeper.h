// Qn::PrSleeper: sleeps for a precise time, measured on the hardware counter.
//
// The system's sleep wakes late by a margin that depends on the machine (tens
// of microseconds on Linux, up to milliseconds on Windows). The sleeper asks the
// system to sleep for the wanted time less that margin and spends the rest
// yielding the processor until the counter reaches the deadline, so it never
// wakes early and rarely late. It learns the margin from the sleeps it makes:
// the margin rises at once to a late wake-up and falls back slowly.
//
// The one sleeper belongs to the "profiling" package, which makes it at start-up
// (createInstance) and destroys it at shutdown (destroyInstance):
//
//   Qn::PrSleeper::getInstance().sleepMilliseconds(2.5);
//
// Thread-safe: any number of threads may sleep at once.
#pragma once

#include <atomic>
#include <cstdint>

#include <base/inSingleton.h>

namespace Qn {

class QN_BASE_API PrSleeper {
  public:
    // The sleeper; raises InSingletonEx::ExNotInitialized before createInstance()
    // and after destroyInstance().
    static PrSleeper& getInstance();
    // Makes the sleeper (the hardware counter's engine first) and hands it to
    // its singleton; raises what InSingleton<PrSleeper>::create raises.
    static void createInstance();
    // Destroys the sleeper; raises what InSingleton<PrSleeper>::destroy raises.
    static void destroyInstance();

    virtual ~PrSleeper();
    PrSleeper(const PrSleeper&) = delete;
    PrSleeper& operator=(const PrSleeper&) = delete;

    // Return after the given time; at once for 0 or less. Raise
    // PrEx::ExInvalidDuration when the time is not a finite number.
    void sleepSeconds(double seconds);
    void sleepMilliseconds(double milliseconds);
    // Returns once the hardware counter (HwCounter::timeStamp) reaches stamp;
    // at once when it has.
    void sleepUntil(uint64_t stamp);

    // The seconds that the sleeper currently spends yielding before a deadline.
    double getMargin() const { return _margin.load(std::memory_order_relaxed); }

  private:
    PrSleeper();

    // Takes the lateness of one system sleep into the margin.
    void learn(double lateness);
    // Sleeps about the given positive number of seconds in the system.
    static void performSleep(double seconds);

    std::atomic<double> _margin;
};

extern template class QN_BASE_API InSingleton<PrSleeper>;

}  // namespace Qn
