#include <base/lgRegistry.h>

namespace Qn {

LgRegistry::~LgRegistry() = default;

}  // namespace Qn
