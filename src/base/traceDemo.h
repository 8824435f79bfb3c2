// Qn::TraceDemo: a few nested calls traced at the levels "Main" and "Demo", for
// the demo program and the README. The options decide what shows:
//
//   ./qndemo                                      # Main only, indented
//   QN_TRACE_OPTIONS=show=Demo ./qndemo           # the inner calls too
//   QN_TRACE_OPTIONS=show=all,noindent,line ./qndemo
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API TraceDemo {
  public:
    // Traces renderFrame, which loads a scene (reading its objects at the
    // "Demo" level) and reports a missing camera through the "Exceptions"
    // level. Lines go to the current trace manager.
    static void traceNestedCalls();
};

}  // namespace Qn
