#include <base/rnRng.h>

namespace Qn {

template class RnRng<float>;
template class RnRng<double>;

}  // namespace Qn
