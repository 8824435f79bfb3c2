// Test aid: an interval timer on a clock that the test sets by hand, so timing
// code is tested without sleeping.
#pragma once

#include <base/intervalTimer.h>

namespace QnTest {

class ManualTimer : public Qn::IntervalTimer {
  public:
    // now is the clock, in seconds; the test advances it.
    explicit ManualTimer(const double& now) : IntervalTimer(nullptr), _now(now) {}
    void start() override { _start = _now; }
    void stop() override { _stop = _now; }
    double timeInterval() const override { return _stop - _start; }
    double sinceStart() const override { return _now - _start; }

  private:
    const double& _now;
    double _start = 0.0;
    double _stop = 0.0;
};

}  // namespace QnTest
