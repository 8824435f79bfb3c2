#include <base/rnGaussianRng.h>

namespace Qn {

template class RnEvalRng<float, RnGaussianRng<float>>;
template class RnEvalRng<double, RnGaussianRng<double>>;
template class RnGaussianRng<float>;
template class RnGaussianRng<double>;

}  // namespace Qn
