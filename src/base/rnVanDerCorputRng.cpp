#include <base/rnVanDerCorputRng.h>

namespace Qn {

template class RnEvalRng<float, RnVanDerCorputRng<float>>;
template class RnEvalRng<double, RnVanDerCorputRng<double>>;
template class RnUnitIntervalRng<float, RnVanDerCorputRng<float>>;
template class RnUnitIntervalRng<double, RnVanDerCorputRng<double>>;
template class RnVanDerCorputRng<float>;
template class RnVanDerCorputRng<double>;

}  // namespace Qn
