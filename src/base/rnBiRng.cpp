#include <base/rnBiRng.h>

namespace Qn {

template class RnBiRng<float>;
template class RnBiRng<double>;

}  // namespace Qn
