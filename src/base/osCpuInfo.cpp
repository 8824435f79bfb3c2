#include <base/osCpuInfo.h>

#include <atomic>

namespace Qn {

namespace {
// 0 until the first query; the value never changes once known.
std::atomic<uint64_t> hwCounterFrequency{0};
}  // namespace

void OsCpuInfo::initialize() { getHwCounterFrequency(); }

uint64_t OsCpuInfo::getHwCounterFrequency() {
    uint64_t frequency = hwCounterFrequency.load(std::memory_order_relaxed);
    if (frequency == 0) {
        frequency = performGetHwCounterFrequency();
        hwCounterFrequency.store(frequency, std::memory_order_relaxed);
    }
    return frequency;
}

}  // namespace Qn
