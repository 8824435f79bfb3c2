// Qn::LgTrace: the bridge that puts trace lines into the message logger, at the
// level "Tracing", through the calling thread's queue.
//
// While the logger is not active a line goes to the standard output instead.
// With blocking trace on (QN_BLOCKING_TRACE), a producer waits for room rather
// than losing a line, and a line longer than a queue's stream is sent in
// pieces; without it a line that finds the queue full is counted as overflow.
//
// The logging package installs a trace manager that hands every trace line to
// print(), so QN_TRACE_SCOPE and friends reach the log files once the logger runs.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API LgTrace {
  public:
    // Logs one trace line. REQUIRES: mess is not null ("mess"); an empty line
    // does nothing.
    static void print(const char* mess);

    // Installs (and removes) the trace manager that sends trace lines to print().
    // Called by the logging package.
    static void installManager();
    static void removeManager();
};

}  // namespace Qn
