// Qn::InContextAliasMgrBase: what the sources of configuration values share:
// the argument store, which holds copies of the host's command line from
// InInitMgr::initialize until InInitMgr::finalize.
#pragma once

#include <string>

#include <base/qnExport.h>
#include <base/vector.h>

namespace Qn {

class QN_BASE_API InContextAliasMgrBase {
  public:
    using ArgStore = Vector<std::string>;

    // The stored command line, program name first. Not locked: filled and read
    // during start-up on one thread.
    static ArgStore& args();

    // The running program's name: the executable's base name without directory
    // (on Windows also without ".exe"), "demo" for /usr/bin/demo.
    static const char* getApplicationName();

  private:
    // The full path of the running executable.
    static std::string performGetExecutablePath();
};

}  // namespace Qn
