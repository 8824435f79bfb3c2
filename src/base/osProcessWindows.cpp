// Windows companion of OsProcess: the process identifier is
// GetCurrentProcessId().
#include <base/osProcess.h>

#include <windows.h>

namespace Qn {

uint32_t OsProcess::performGetCurrentId() { return GetCurrentProcessId(); }

}  // namespace Qn
