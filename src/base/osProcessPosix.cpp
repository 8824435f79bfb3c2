// POSIX companion of OsProcess: the process identifier is getpid().
#include <base/osProcess.h>

#include <unistd.h>

namespace Qn {

uint32_t OsProcess::performGetCurrentId() { return static_cast<uint32_t>(getpid()); }

}  // namespace Qn
