// Qn::RnMultiRng<T, N>: the interface of every N-dimensional sample generator.
//
// The operations of Qn::RnBiRng<T> with an array of N components in place of
// each pair. getSequence takes one output array per component and fills them
// point by point. The library exports N = 2 and N = 3; other dimensions are
// instantiated where they are used.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <base/qnExport.h>

namespace Qn {

template <class T, int N>
class RnMultiRng {
    static_assert(N >= 1, "a generator has at least one dimension");

  public:
    static constexpr int Dimension = N;

    // The next point, into point[0 .. N-1].
    virtual void getSample(T* point) = 0;
    // The next n points: component k of point i into out[k][i].
    virtual void getSequence(unsigned int n, T* const* out) = 0;
    // Width, lower and upper end of the useful range, one value per component.
    virtual void getEfficientWidth(T* width) const = 0;
    virtual void getEfficientMin(T* min) const = 0;
    virtual void getEfficientMax(T* max) const = 0;
    // Share of the drawn points that fall in the efficient range.
    virtual T getEfficientFraction() const = 0;
    // Probability density at point[0 .. N-1].
    virtual T getPdf(const T* point) const = 0;
    // Starts the sequence again.
    virtual void restart() = 0;
    // A fixed descriptive name.
    virtual const char* getName() const = 0;
    virtual ~RnMultiRng() = default;
};

extern template class QN_BASE_API RnMultiRng<float, 2>;
extern template class QN_BASE_API RnMultiRng<double, 2>;
extern template class QN_BASE_API RnMultiRng<float, 3>;
extern template class QN_BASE_API RnMultiRng<double, 3>;

}  // namespace Qn
