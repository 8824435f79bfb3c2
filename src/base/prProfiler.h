// Qn::PrProfiler: times repeated cycles of work on an interval timer and reports
// how many cycles ran and their total, average, minimum and maximum time.
//
// A cycle is closed by endCycle(); its time is the sum of the start/stop
// intervals measured since the previous endCycle() or reset(), so one cycle can
// time several separate stretches of work. A cycle in which nothing was timed
// counts as a cycle of 0 seconds.
//
//   Qn::PrProfiler decode("decode", Qn::PrProfiler::Hardware);
//   for (Frame& frame : frames) {
//       decode.start(); frame.decode(); decode.stop();
//       decode.endCycle();
//   }
//   decode.report(std::cout);
//   // cycles = 24, total = 0.048211 s, average = 0.002009 s, minimum = ...
//
// Not thread-safe: one thread times with a profiler at a time.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

#include <base/intervalTimer.h>
#include <base/objPtr.h>

namespace Qn {

class QN_BASE_API PrProfiler {
  public:
    // The clock a profiler reads: the time of day (millisecond resolution, safe
    // over long runs) or the hardware counter (fine resolution).
    enum Clock { TimeOfDay, Hardware };

    // A profiler on the named clock. A null name is "anonymous".
    PrProfiler(const char* name, Clock clock);
    // A profiler on a timer of the caller's (a scripted timer in tests, or
    // another clock); the profiler owns it and renames it after itself.
    PrProfiler(const char* name, ObjPtr<IntervalTimer> timer);
    ~PrProfiler();

    PrProfiler(const PrProfiler&) = delete;
    PrProfiler& operator=(const PrProfiler&) = delete;

    const char* getName() const { return _name.c_str(); }

    // Starts timing. Raises PrEx::ExAlreadyRunning when it runs already.
    void start();
    // Stops timing and adds the interval since start() to the open cycle. An
    // interval that comes out negative (the time of day set back meanwhile)
    // adds 0. Raises PrEx::ExNotRunning when it does not run.
    void stop();
    // Closes the open cycle: counts it and takes its time into the total, the
    // minimum and the maximum. Raises PrEx::ExStillRunning while running.
    void endCycle();
    // Stops timing if it runs and forgets every cycle, the open one included.
    void reset();

    bool isRunning() const { return _running; }
    // The closed cycles, their total seconds and the seconds of the open one.
    uint64_t getCount() const { return _count; }
    double getTotal() const { return _total; }
    double getOpenCycle() const { return _open; }
    // Seconds per closed cycle, and the shortest and longest cycle; 0 while no
    // cycle is closed.
    double getAverage() const;
    double getMinimum() const { return _count != 0 ? _minimum : 0.0; }
    double getMaximum() const { return _count != 0 ? _maximum : 0.0; }

    // Writes one line without its end: "cycles = <n>, total = <s> s, average =
    // <s> s, minimum = <s> s, maximum = <s> s", seconds with six decimals.
    void report(std::ostream& stream) const;

  private:
    std::string _name;
    ObjPtr<IntervalTimer> _timer;
    bool _running = false;
    uint64_t _count = 0;
    double _open = 0.0;
    double _total = 0.0;
    double _minimum = 0.0;
    double _maximum = 0.0;
};

// Writes profiler.report().
QN_BASE_API std::ostream& operator<<(std::ostream& stream, const PrProfiler& profiler);

}  // namespace Qn
