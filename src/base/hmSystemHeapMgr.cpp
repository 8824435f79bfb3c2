#include <base/hmSystemHeapMgr.h>

namespace Qn {

void HmSystemHeapMgr::dumpMallocStats(std::ostream& out) const { performDumpMallocStats(out); }

}  // namespace Qn
