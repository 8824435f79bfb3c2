#include <base/rnMexicanHatRng.h>

namespace Qn {

template class RnEvalRng<float, RnMexicanHatRng<float>>;
template class RnEvalRng<double, RnMexicanHatRng<double>>;
template class RnMexicanHatRng<float>;
template class RnMexicanHatRng<double>;

}  // namespace Qn
