// Qn::DtHwCounterClockSource: the reference clock on the hardware counter,
// named "HwCounter", counting counter ticks since it was made.
#pragma once

#include <base/dtRefClockSource.h>

namespace Qn {

class QN_BASE_API DtHwCounterClockSource : public DtRefClockSource {
  public:
    // Makes the counter engine if needed and takes the start stamp now.
    DtHwCounterClockSource();

    // Counter ticks since construction; safe from any thread.
    int64_t getValue() const override;

  private:
    uint64_t _start;
};

}  // namespace Qn
