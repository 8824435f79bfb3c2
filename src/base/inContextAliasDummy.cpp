#include <base/inContextAliasDummy.h>

namespace Qn {

InContextAliasDummy::InContextAliasDummy() : InContextAliasBase("dummy") {}

}  // namespace Qn
