#include <base/osProcess.h>

namespace Qn {

uint32_t OsProcess::getCurrentId() { return performGetCurrentId(); }

}  // namespace Qn
