#include <base/rnHaltonBiRng.h>

namespace Qn {

template class RnBiFromMultiRng<float, RnHaltonMultiRng<float, 2>>;
template class RnBiFromMultiRng<double, RnHaltonMultiRng<double, 2>>;
template class RnHaltonBiRng<float>;
template class RnHaltonBiRng<double>;

}  // namespace Qn
