#include <base/inContextAlias.h>

namespace Qn {

template class InContextAlias<InInitOvr, 0>;
template class InContextAlias<InInitArg, 1>;
template class InContextAlias<InInitEnv, 1>;
template class InContextAlias<InInitDef, 0>;

}  // namespace Qn
