#include <base/rnStdUniformRng.h>

namespace Qn {

template class RnEvalRng<float, RnStdUniformRng<float>>;
template class RnEvalRng<double, RnStdUniformRng<double>>;
template class RnUnitIntervalRng<float, RnStdUniformRng<float>>;
template class RnUnitIntervalRng<double, RnStdUniformRng<double>>;
template class RnStdUniformRng<float>;
template class RnStdUniformRng<double>;

}  // namespace Qn
