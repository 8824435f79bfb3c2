#include <base/dtRefClockSource.h>

namespace Qn {

DtRefClockSource::~DtRefClockSource() = default;

}  // namespace Qn
