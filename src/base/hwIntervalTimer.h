// Qn::HwIntervalTimer: an interval timer on the hardware counter (Qn::HwCounter).
#pragma once

#include <cstdint>

#include <base/intervalTimer.h>

namespace Qn {

class QN_BASE_API HwIntervalTimer : public IntervalTimer {
  public:
    // Makes the counter engine if it does not exist yet. Both stamps start at 0.
    explicit HwIntervalTimer(const char* name = nullptr);

    void start() override;
    void stop() override;
    // Uses the stop stamp as it stands: after a start without a new stop the
    // result is negative.
    double timeInterval() const override;
    double sinceStart() const override;

  private:
    uint64_t _start = 0;
    uint64_t _stop = 0;
};

}  // namespace Qn
