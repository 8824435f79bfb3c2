#include <base/rnMultiRng.h>

namespace Qn {

template class RnMultiRng<float, 2>;
template class RnMultiRng<double, 2>;
template class RnMultiRng<float, 3>;
template class RnMultiRng<double, 3>;

}  // namespace Qn
