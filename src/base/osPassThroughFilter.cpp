#include <base/osPassThroughFilter.h>

namespace Qn {

bool OsPassThroughFilter::filter(const OsFilePath&) const { return true; }

}  // namespace Qn
