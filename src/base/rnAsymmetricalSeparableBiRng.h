// Qn::RnAsymmetricalSeparableBiRng<T>: two-dimensional points whose x comes
// from one one-dimensional source and y from another, with the product density
// and each component in its source's range. Typical use: a stratified source
// along one axis and a pseudo-random one along the other. The sources are not
// owned and must outlive the generator.
//
// Thread-safety: none; the sources are shared state of this generator.
#pragma once

#include <base/rnSeparableBiRng.h>

namespace Qn {

template <class T>
class RnAsymmetricalSeparableBiRng : public RnBiFromMultiRng<T, RnSeparableMultiRng<T, 2>> {
  public:
    // REQUIRES: neither source null.
    RnAsymmetricalSeparableBiRng(RnRng<T>* xSource, RnRng<T>* ySource)
        : RnBiFromMultiRng<T, RnSeparableMultiRng<T, 2>>(
              RnSeparableMultiRng<T, 2>({xSource, ySource})) {}

    const char* getName() const override;
};

extern template class QN_BASE_API RnAsymmetricalSeparableBiRng<float>;
extern template class QN_BASE_API RnAsymmetricalSeparableBiRng<double>;

}  // namespace Qn

#include <base/rnAsymmetricalSeparableBiRng.imp>
