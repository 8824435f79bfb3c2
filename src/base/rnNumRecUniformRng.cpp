#include <base/rnNumRecUniformRng.h>

namespace Qn {

template class RnEvalRng<float, RnNumRecUniformRng<float>>;
template class RnEvalRng<double, RnNumRecUniformRng<double>>;
template class RnUnitIntervalRng<float, RnNumRecUniformRng<float>>;
template class RnUnitIntervalRng<double, RnNumRecUniformRng<double>>;
template class RnNumRecUniformRng<float>;
template class RnNumRecUniformRng<double>;

}  // namespace Qn
