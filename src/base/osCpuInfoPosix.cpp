// POSIX companion of OsCpuInfo: the performance counter is CLOCK_MONOTONIC in
// nanoseconds.
#include <base/osCpuInfo.h>

#include <time.h>

#include <base/exSysErrorANSI.h>

namespace Qn {

uint64_t OsCpuInfo::performGetHwCounterFrequency() { return 1000000000ULL; }

uint64_t OsCpuInfo::getHwCounterValue() {
    timespec now;
    if (clock_gettime(CLOCK_MONOTONIC, &now) != 0) throw ExSysErrorANSI(__FILE__, __LINE__);
    return static_cast<uint64_t>(now.tv_sec) * 1000000000ULL + static_cast<uint64_t>(now.tv_nsec);
}

}  // namespace Qn
