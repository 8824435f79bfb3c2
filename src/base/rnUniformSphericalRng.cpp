#include <base/rnUniformSphericalRng.h>

namespace Qn {

template class RnDirectionRng<float, RnUniformSphericalRng<float>>;
template class RnDirectionRng<double, RnUniformSphericalRng<double>>;
template class RnUniformSphericalRng<float>;
template class RnUniformSphericalRng<double>;

}  // namespace Qn
