// Qn::RnSeparableBiRng<T>: two-dimensional points made of two successive values
// of one one-dimensional source (x first, then y), with the product density.
// The source is not owned and must outlive the generator.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <base/rnBiFromMultiRng.h>
#include <base/rnSeparableMultiRng.h>

namespace Qn {

template <class T>
class RnSeparableBiRng : public RnBiFromMultiRng<T, RnSeparableMultiRng<T, 2>> {
  public:
    // REQUIRES: source not null.
    explicit RnSeparableBiRng(RnRng<T>* source)
        : RnBiFromMultiRng<T, RnSeparableMultiRng<T, 2>>(RnSeparableMultiRng<T, 2>(source)) {}

    const char* getName() const override;
};

extern template class QN_BASE_API RnBiFromMultiRng<float, RnSeparableMultiRng<float, 2>>;
extern template class QN_BASE_API RnBiFromMultiRng<double, RnSeparableMultiRng<double, 2>>;
extern template class QN_BASE_API RnSeparableBiRng<float>;
extern template class QN_BASE_API RnSeparableBiRng<double>;

}  // namespace Qn

#include <base/rnSeparableBiRng.imp>
