#include <base/inPackageInitBase.h>

namespace Qn {

InPackageInitBase::~InPackageInitBase() = default;

}  // namespace Qn
