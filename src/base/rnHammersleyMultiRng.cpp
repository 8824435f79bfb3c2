#include <base/rnHammersleyMultiRng.h>

namespace Qn {

template class RnHammersleyMultiRng<float, 2>;
template class RnHammersleyMultiRng<double, 2>;
template class RnHammersleyMultiRng<float, 3>;
template class RnHammersleyMultiRng<double, 3>;

}  // namespace Qn
