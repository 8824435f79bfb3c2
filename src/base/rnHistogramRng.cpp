#include <base/rnHistogramRng.h>

namespace Qn {

template class RnEvalRng<float, RnHistogramRng<float>>;
template class RnEvalRng<double, RnHistogramRng<double>>;
template class RnHistogramRng<float>;
template class RnHistogramRng<double>;

}  // namespace Qn
