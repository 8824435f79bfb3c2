// Qn::OsCpuInfo: description of the machine's processor, as the operating system
// reports it. The performance-counter frequency is queried once, by initialize()
// or at the first call, and cached; reading the counter itself goes to the system
// each time.
//
// On POSIX the counter is clock_gettime(CLOCK_MONOTONIC) in nanoseconds, so its
// frequency is exactly 1000000000; on Windows it is QueryPerformanceCounter.
#pragma once

#include <cstdint>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsCpuInfo {
  public:
    // Queries and caches what later calls return. Called at start-up.
    static void initialize();

    // Ticks per second of the performance counter. Raises ExSysErrorANSI when
    // the system cannot tell.
    static uint64_t getHwCounterFrequency();
    // The raw performance-counter value now. Raises ExSysErrorANSI on failure.
    static uint64_t getHwCounterValue();

  private:
    static uint64_t performGetHwCounterFrequency();
};

}  // namespace Qn
