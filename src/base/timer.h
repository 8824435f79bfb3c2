// Qn::Timer<T>: a stopwatch that accumulates the intervals of an interval timer
// T (Qn::HwIntervalTimer or Qn::TodIntervalTimer; any class with the
// IntervalTimer operations and a constructor from a name will do).
//
// end() without a preceding begin() still adds T's interval from its last start;
// the stopwatch does not guard against it. Not thread-safe.
#pragma once

#include <base/hwIntervalTimer.h>
#include <base/timerBase.h>
#include <base/todIntervalTimer.h>

namespace Qn {

template <class T>
class Timer : public TimerBase {
  public:
    // A stopped stopwatch with nothing accumulated; a null name is "anonymous".
    explicit Timer(const char* name = nullptr);

    void setName(const char* name) override;
    const char* getName() const override;
    void begin() override;
    void end() override;
    void clear() override;
    double elapsed() const override;

  private:
    int _stopped;  // 1 when not running
    T _timer;
    double _accumulated;
};

extern template class QN_BASE_API Timer<HwIntervalTimer>;
extern template class QN_BASE_API Timer<TodIntervalTimer>;

}  // namespace Qn

#include <base/timer.imp>
