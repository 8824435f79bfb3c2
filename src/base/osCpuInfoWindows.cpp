// Windows companion of OsCpuInfo: the performance counter is
// QueryPerformanceCounter at QueryPerformanceFrequency; the processor name comes
// from the registry, the caches from GetLogicalProcessorInformation, the
// processor count from GetActiveProcessorCount and the memory size from
// GlobalMemoryStatusEx.
#include <base/osCpuInfo.h>

#include <windows.h>

#include <cerrno>
#include <cstring>
#include <vector>

#include <base/exSysErrorANSI.h>
#include <base/exSysErrorWindows.h>

namespace Qn {

namespace {

// The cache descriptions of every processor.
std::vector<SYSTEM_LOGICAL_PROCESSOR_INFORMATION> processorInformation() {
    DWORD size = 0;
    GetLogicalProcessorInformation(nullptr, &size);
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) throw ExSysErrorWindows(__FILE__, __LINE__);
    std::vector<SYSTEM_LOGICAL_PROCESSOR_INFORMATION> entries(
        size / sizeof(SYSTEM_LOGICAL_PROCESSOR_INFORMATION));
    if (!GetLogicalProcessorInformation(entries.data(), &size)) {
        throw ExSysErrorWindows(__FILE__, __LINE__);
    }
    entries.resize(size / sizeof(SYSTEM_LOGICAL_PROCESSOR_INFORMATION));
    return entries;
}

// The first data or unified cache of level; null when there is none.
const CACHE_DESCRIPTOR* findCache(const std::vector<SYSTEM_LOGICAL_PROCESSOR_INFORMATION>& entries,
                                  int level) {
    for (const auto& entry : entries) {
        if (entry.Relationship == RelationCache && entry.Cache.Level == level &&
            entry.Cache.Type != CacheInstruction) {
            return &entry.Cache;
        }
    }
    return nullptr;
}

}  // namespace

uint64_t OsCpuInfo::performGetHwCounterFrequency() {
    LARGE_INTEGER frequency;
    if (!QueryPerformanceFrequency(&frequency)) throw ExSysErrorANSI(__FILE__, __LINE__, EINVAL);
    return static_cast<uint64_t>(frequency.QuadPart);
}

uint64_t OsCpuInfo::getHwCounterValue() {
    LARGE_INTEGER value;
    if (!QueryPerformanceCounter(&value)) throw ExSysErrorANSI(__FILE__, __LINE__, EINVAL);
    return static_cast<uint64_t>(value.QuadPart);
}

ArrayPtrRet<char> OsCpuInfo::getProcessorName() {
    const char* key = "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";
    char name[256];
    DWORD size = sizeof name;
    LSTATUS status = RegGetValueA(HKEY_LOCAL_MACHINE, key, "ProcessorNameString", RRF_RT_REG_SZ,
                                  nullptr, name, &size);
    if (status != ERROR_SUCCESS) throw ExSysErrorWindows(__FILE__, __LINE__, status);
    size_t length = std::strlen(name);
    ArrayPtrRet<char> result(new char[length + 1]);
    std::memcpy(result.get(), name, length + 1);
    return result;
}

uint32_t OsCpuInfo::getProcessorCount() {
    DWORD count = GetActiveProcessorCount(ALL_PROCESSOR_GROUPS);
    if (count == 0) throw ExSysErrorWindows(__FILE__, __LINE__);
    return count;
}

uint64_t OsCpuInfo::performGetCacheSize(int level) {
    auto entries = processorInformation();
    const CACHE_DESCRIPTOR* cache = findCache(entries, level);
    return cache != nullptr ? cache->Size : 0;
}

uint32_t OsCpuInfo::getCacheLineSize() {
    auto entries = processorInformation();
    const CACHE_DESCRIPTOR* cache = findCache(entries, 1);
    return cache != nullptr ? cache->LineSize : 0;
}

uint64_t OsCpuInfo::getMemorySize() {
    MEMORYSTATUSEX status;
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) throw ExSysErrorWindows(__FILE__, __LINE__);
    return status.ullTotalPhys;
}

}  // namespace Qn
