#include <base/rnHistogramBiRng.h>

namespace Qn {

template class RnHistogramBiRng<float>;
template class RnHistogramBiRng<double>;

}  // namespace Qn
