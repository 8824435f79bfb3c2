#include <base/rnSeparableBiRng.h>

namespace Qn {

template class RnBiFromMultiRng<float, RnSeparableMultiRng<float, 2>>;
template class RnBiFromMultiRng<double, RnSeparableMultiRng<double, 2>>;
template class RnSeparableBiRng<float>;
template class RnSeparableBiRng<double>;

}  // namespace Qn
