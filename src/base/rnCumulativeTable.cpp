#include <base/rnCumulativeTable.h>

namespace Qn {

template class RnCumulativeTable<float>;
template class RnCumulativeTable<double>;

}  // namespace Qn
