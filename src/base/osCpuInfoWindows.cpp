// Windows companion of OsCpuInfo: the performance counter is
// QueryPerformanceCounter at QueryPerformanceFrequency.
#include <base/osCpuInfo.h>

#include <windows.h>

#include <cerrno>

#include <base/exSysErrorANSI.h>

namespace Qn {

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

}  // namespace Qn
