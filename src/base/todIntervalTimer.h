// Qn::TodIntervalTimer: an interval timer on the time of day, with a resolution
// of one millisecond.
#pragma once

#include <base/intervalTimer.h>

namespace Qn {

class QN_BASE_API TodIntervalTimer : public IntervalTimer {
  public:
    // A time of day: whole seconds since the epoch and milliseconds (0 to 999).
    struct NativeTimer {
        double seconds = 0.0;
        double milliseconds = 0.0;
    };

    explicit TodIntervalTimer(const char* name = nullptr) : IntervalTimer(name) {}

    // Raise ExSysErrorANSI when the time of day cannot be read.
    void start() override;
    void stop() override;
    double timeInterval() const override;
    double sinceStart() const override;

    // Seconds from one time of day to another.
    static double getInterval(const NativeTimer& from, const NativeTimer& to) {
        return (to.seconds - from.seconds) + (to.milliseconds - from.milliseconds) * 0.001;
    }

  private:
    // The time of day now (platform companion).
    static NativeTimer performGetTimeOfDay();

    NativeTimer _start;
    NativeTimer _stop;
};

}  // namespace Qn
