// Qn::RnUnitCubeMultiRng<T, N>: the common part of the N-dimensional
// generators whose points are spread over the unit cube [0, 1)^N with density 1.
#pragma once

#include <base/rnMultiRng.h>

namespace Qn {

template <class T, int N>
class RnUnitCubeMultiRng : public RnMultiRng<T, N> {
  public:
    // Minimum 0, maximum and width 1 in every component; fraction 1.
    void getEfficientWidth(T* width) const override;
    void getEfficientMin(T* min) const override;
    void getEfficientMax(T* max) const override;
    T getEfficientFraction() const override;
    // 1 inside [0, 1)^N, else 0.
    T getPdf(const T* point) const override;
};

extern template class QN_BASE_API RnUnitCubeMultiRng<float, 2>;
extern template class QN_BASE_API RnUnitCubeMultiRng<double, 2>;
extern template class QN_BASE_API RnUnitCubeMultiRng<float, 3>;
extern template class QN_BASE_API RnUnitCubeMultiRng<double, 3>;

}  // namespace Qn

#include <base/rnUnitCubeMultiRng.imp>
