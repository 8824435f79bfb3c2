#include <base/rnNiederreiterMultiRng.h>

namespace Qn {

template class RnNiederreiterMultiRng<float, 2>;
template class RnNiederreiterMultiRng<double, 2>;
template class RnNiederreiterMultiRng<float, 3>;
template class RnNiederreiterMultiRng<double, 3>;

}  // namespace Qn
