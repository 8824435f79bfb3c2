#include <base/rnSampleSet.h>

namespace Qn {

template class RnSampleSet<float>;
template class RnSampleSet<double>;

}  // namespace Qn
