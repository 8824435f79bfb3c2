// Qn::InInitGuard: initialises the library for the scope of a host's main().
//
//   int main(int argc, char** argv) {
//       Qn::InInitGuard guard(argc, argv);   // argc is 0 and argv null afterwards
//       ...
//   }                                       // packages finalised here, in reverse
//
// When start-up fails with an InEx exception, the guard prints "Initialisation
// failed: " with the reason and the manager's dump on the standard output,
// finalises what was initialised and lets the exception continue. It cannot be
// copied.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API InInitGuard {
  public:
    InInitGuard(int& argc, const char* const*& argv);
    InInitGuard(int& argc, char**& argv);
    // Finalises the manager; a failure is raised unless the stack is unwinding.
    ~InInitGuard() noexcept(false);

    InInitGuard(const InInitGuard&) = delete;
    InInitGuard& operator=(const InInitGuard&) = delete;
};

}  // namespace Qn
