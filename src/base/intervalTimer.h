// Qn::IntervalTimer: the interface of a named start/stop timer.
//
// The name is not copied: its text must outlive the timer. Timers are not
// thread-safe.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API IntervalTimer {
  public:
    virtual ~IntervalTimer();
    // Marks the start, then the stop, of the measured interval.
    virtual void start() = 0;
    virtual void stop() = 0;
    // Seconds between the last start and the last stop.
    virtual double timeInterval() const = 0;
    // Seconds from the last start to now.
    virtual double sinceStart() const = 0;

    const char* getName() const { return _name; }
    // A null name stands for "anonymous".
    void setName(const char* name) { _name = name != nullptr ? name : "anonymous"; }

  protected:
    explicit IntervalTimer(const char* name) { setName(name); }
    IntervalTimer(const IntervalTimer&) = default;
    IntervalTimer& operator=(const IntervalTimer&) = default;

  private:
    const char* _name;
};

}  // namespace Qn
