// Qn::LgDemo: the message logger's part of the library tour (examples/qndemo):
// several threads log through queues of their own into the log directory.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API LgDemo {
  public:
    // Starts the logger when the "logger" package has not (and stops it again
    // at the end), installs per-thread queues and a reader thread, prints the
    // setup report, lets `threads` producer threads log a few messages each
    // (progress at Informational, a warning, a time at Profiling), stops the
    // reader and prints how many lines went where. Raises what the logger
    // raises. REQUIRES: threads >= 1.
    static void logFromThreads(int threads);
};

}  // namespace Qn
