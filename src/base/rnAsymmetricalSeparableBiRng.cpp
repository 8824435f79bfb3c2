#include <base/rnAsymmetricalSeparableBiRng.h>

namespace Qn {

template class RnAsymmetricalSeparableBiRng<float>;
template class RnAsymmetricalSeparableBiRng<double>;

}  // namespace Qn
