#include <base/rnUniformHemisphericalRng.h>

namespace Qn {

template class RnDirectionRng<float, RnUniformHemisphericalRng<float>>;
template class RnDirectionRng<double, RnUniformHemisphericalRng<double>>;
template class RnUniformHemisphericalRng<float>;
template class RnUniformHemisphericalRng<double>;

}  // namespace Qn
