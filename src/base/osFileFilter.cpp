#include <base/osFileFilter.h>

namespace Qn {

OsFileFilter::~OsFileFilter() = default;

}  // namespace Qn
