#include <base/osCpuInfo.h>

#include <atomic>
#include <bit>

#include <base/assertions.h>

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

uint64_t OsCpuInfo::getCacheSize(int level) {
    QN_ASSERT(level >= 1);
    return performGetCacheSize(level);
}

OsCpuInfo::ByteOrder OsCpuInfo::getByteOrder() {
    static_assert(std::endian::native == std::endian::little ||
                  std::endian::native == std::endian::big);
    return std::endian::native == std::endian::little ? LittleEndian : BigEndian;
}

}  // namespace Qn
