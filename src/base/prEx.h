// Qn::PrEx: the exception family of the profiling module (profilers, their
// registry, the periodic timer and the sleeper).
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API PrEx : public ExBase {
  public:
    // start() of something that runs already (the argument names it).
    class ExAlreadyRunning;
    // stop() of something that does not run.
    class ExNotRunning;
    // A profiler's cycle closed while it still runs.
    class ExStillRunning;
    // A second profiler of the same name in one registry.
    class ExDuplicateProfiler;
    // No profiler of that name in the registry.
    class ExUnknownProfiler;
    // A period or a sleep that is not a finite number of seconds.
    class ExInvalidDuration;

  protected:
    PrEx(const char* file, int line);
};

QN_EX_FORMAT(QN_BASE_API, PrEx, ExAlreadyRunning, std::logic_error, "Already running: <%.*s>.");
QN_EX_FORMAT(QN_BASE_API, PrEx, ExNotRunning, std::logic_error, "Not running: <%.*s>.");
QN_EX_FORMAT(QN_BASE_API, PrEx, ExStillRunning, std::logic_error,
             "Cycle ended while running: <%.*s>.");
QN_EX_FORMAT(QN_BASE_API, PrEx, ExDuplicateProfiler, std::logic_error,
             "Duplicate profiler: <%.*s>.");
QN_EX_FORMAT(QN_BASE_API, PrEx, ExUnknownProfiler, std::logic_error, "Unknown profiler: <%.*s>.");
// "Invalid duration: <seconds> seconds.", the number as "%g" writes it.
class QN_BASE_API PrEx::ExInvalidDuration
    : public ExLeaf<PrEx::ExInvalidDuration, std::invalid_argument, PrEx> {
  public:
    ExInvalidDuration(const char* file, int line, double seconds);
};

}  // namespace Qn
