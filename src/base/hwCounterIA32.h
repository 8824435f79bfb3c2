// Qn::HwCounterIA32: the counter engine over the operating system's performance
// counter (Qn::OsCpuInfo), scaled to a 32-bit rate.
#pragma once

#include <base/hwCounterEng.h>
#include <base/osCpuInfo.h>

namespace Qn {

class QN_BASE_API HwCounterIA32 : public HwCounterEng {
  public:
    // frequency: raw counter ticks per second. HwCounterEng::create() passes the
    // system's; any other value gives an engine with that rate (for tests).
    explicit HwCounterIA32(uint64_t frequency) : HwCounterEng(frequency) {}

    uint64_t timeStamp() const override { return OsCpuInfo::getHwCounterValue() >> _shift; }
    void dump(std::ostream& stream) const override;
};

}  // namespace Qn
