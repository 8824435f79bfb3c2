#include <base/rnCosineHemisphericalRng.h>

namespace Qn {

template class RnDirectionRng<float, RnCosineHemisphericalRng<float>>;
template class RnDirectionRng<double, RnCosineHemisphericalRng<double>>;
template class RnCosineHemisphericalRng<float>;
template class RnCosineHemisphericalRng<double>;

}  // namespace Qn
