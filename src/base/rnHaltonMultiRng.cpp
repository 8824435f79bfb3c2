#include <base/rnHaltonMultiRng.h>

namespace Qn {

template class RnHaltonMultiRng<float, 2>;
template class RnHaltonMultiRng<double, 2>;
template class RnHaltonMultiRng<float, 3>;
template class RnHaltonMultiRng<double, 3>;

}  // namespace Qn
