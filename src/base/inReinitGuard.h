// Qn::InReinitGuard: allows packages to register after initialisation (typically
// by loading another library). Packages registered while guards live are
// initialised together when the outermost guard ends.
//
//   {
//       Qn::InReinitGuard guard;
//       loadPlugin("render.so");   // its packages register here
//   }                              // ... and are initialised here
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API InReinitGuard {
  public:
    InReinitGuard();
    // Runs a pass when the last guard ends; raises what that pass raises unless
    // the stack is already unwinding.
    ~InReinitGuard() noexcept(false);

    InReinitGuard(const InReinitGuard&) = delete;
    InReinitGuard& operator=(const InReinitGuard&) = delete;
};

}  // namespace Qn
