// Qn::OsCpuInfo: description of the machine's processor, as the operating system
// reports it: name, number of processors, cache sizes, memory size, byte order.
// The performance-counter frequency is queried once, by initialize() or at the
// first call, and cached; reading the counter and every other query go to the
// system each time. All queries may be called from any thread.
//
//   std::cout << OsCpuInfo::getProcessorName().get() << ", "
//             << OsCpuInfo::getProcessorCount() << " processors, L2 "
//             << OsCpuInfo::getCacheSize(2) / 1024 << " KiB\n";
//
// On POSIX the counter is clock_gettime(CLOCK_MONOTONIC) in nanoseconds, so its
// frequency is exactly 1000000000; on Windows it is QueryPerformanceCounter.
#pragma once

#include <cstdint>

#include <base/arrayPtr.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsCpuInfo {
  public:
    enum ByteOrder { LittleEndian, BigEndian };

    // Queries and caches what later calls return. Called at start-up.
    static void initialize();

    // Ticks per second of the performance counter. Raises ExSysErrorANSI when
    // the system cannot tell.
    static uint64_t getHwCounterFrequency();
    // The raw performance-counter value now. Raises ExSysErrorANSI on failure.
    static uint64_t getHwCounterValue();

    // The processor's model name as the system reports it (on POSIX the
    // "model name" of /proc/cpuinfo, else the machine name of uname; on Windows
    // the registry's ProcessorNameString). Raises ExSysErrorNative.
    static ArrayPtrRet<char> getProcessorName();
    // The number of logical processors online. Raises ExSysErrorNative.
    static uint32_t getProcessorCount();
    // The size in bytes of the level's data (or unified) cache of the first
    // processor; 0 when the system reports no such cache. REQUIRES: level >= 1.
    static uint64_t getCacheSize(int level);
    // The line size in bytes of the first-level data cache; 0 when not reported.
    static uint32_t getCacheLineSize();
    // The installed physical memory in bytes. Raises ExSysErrorNative.
    static uint64_t getMemorySize();
    // The order of the bytes of a number in memory.
    static ByteOrder getByteOrder();

  private:
    static uint64_t performGetHwCounterFrequency();
    static uint64_t performGetCacheSize(int level);
};

}  // namespace Qn
