#include <base/rnSeparableMultiRng.h>

namespace Qn {

template class RnSeparableMultiRng<float, 2>;
template class RnSeparableMultiRng<double, 2>;
template class RnSeparableMultiRng<float, 3>;
template class RnSeparableMultiRng<double, 3>;

}  // namespace Qn
