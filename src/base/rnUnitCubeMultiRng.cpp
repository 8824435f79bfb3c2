#include <base/rnUnitCubeMultiRng.h>

namespace Qn {

template class RnUnitCubeMultiRng<float, 2>;
template class RnUnitCubeMultiRng<double, 2>;
template class RnUnitCubeMultiRng<float, 3>;
template class RnUnitCubeMultiRng<double, 3>;

}  // namespace Qn
