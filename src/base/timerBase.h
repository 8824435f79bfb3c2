// Qn::TimerBase: the interface of an accumulating stopwatch (Qn::Timer<T>), so
// that stopwatches over different clocks can be kept and printed alike.
//
//   Qn::Timer<Qn::HwIntervalTimer> load("load");
//   load.begin(); read(); load.end();
//   std::cout << load << "\n";     // load: 0.0123 seconds
#pragma once

#include <iosfwd>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API TimerBase {
  public:
    virtual ~TimerBase();
    // The name of the underlying timer (not copied; it must outlive the timer).
    virtual void setName(const char* name) = 0;
    virtual const char* getName() const = 0;
    // Starts running.
    virtual void begin() = 0;
    // Stops running and adds the interval since the last begin.
    virtual void end() = 0;
    // Stops running and forgets the accumulated time.
    virtual void clear() = 0;
    // The accumulated seconds, including the running interval if any.
    virtual double elapsed() const = 0;
};

// Writes "<name>: <elapsed> seconds".
QN_BASE_API std::ostream& operator<<(std::ostream& stream, const TimerBase& timer);

}  // namespace Qn
