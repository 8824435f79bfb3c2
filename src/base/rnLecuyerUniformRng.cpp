#include <base/rnLecuyerUniformRng.h>

namespace Qn {

template class RnEvalRng<float, RnLecuyerUniformRng<float>>;
template class RnEvalRng<double, RnLecuyerUniformRng<double>>;
template class RnUnitIntervalRng<float, RnLecuyerUniformRng<float>>;
template class RnUnitIntervalRng<double, RnLecuyerUniformRng<double>>;
template class RnLecuyerUniformRng<float>;
template class RnLecuyerUniformRng<double>;

}  // namespace Qn
