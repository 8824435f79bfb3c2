#include <base/rnHammersleyBiRng.h>

namespace Qn {

template class RnBiFromMultiRng<float, RnHammersleyMultiRng<float, 2>>;
template class RnBiFromMultiRng<double, RnHammersleyMultiRng<double, 2>>;
template class RnHammersleyBiRng<float>;
template class RnHammersleyBiRng<double>;

}  // namespace Qn
