// Qn::OsProcess: facts about the running process. Callable from any thread.
#pragma once

#include <cstdint>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsProcess {
  public:
    // The system's identifier of this process (getpid, GetCurrentProcessId).
    static uint32_t getCurrentId();

  private:
    static uint32_t performGetCurrentId();
};

}  // namespace Qn
