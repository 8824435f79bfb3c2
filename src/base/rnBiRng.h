// Qn::RnBiRng<T>: the interface of every two-dimensional sample generator.
//
// The same operations as Qn::RnRng<T>, with a pair of outputs (or one output
// array per component) in place of each value. getSequence fills the arrays
// point by point, so it yields what n calls of getSample would.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <base/qnExport.h>

namespace Qn {

template <class T>
class RnBiRng {
  public:
    // The next point.
    virtual void getSample(T& x, T& y) = 0;
    // The next n points: first components into x[0 .. n-1], second into y[0 .. n-1].
    virtual void getSequence(unsigned int n, T* x, T* y) = 0;
    // Width, lower and upper end of the useful range, one output per component.
    virtual void getEfficientWidth(T& x, T& y) const = 0;
    virtual void getEfficientMin(T& x, T& y) const = 0;
    virtual void getEfficientMax(T& x, T& y) const = 0;
    // Share of the drawn points that fall in the efficient range.
    virtual T getEfficientFraction() const = 0;
    // Probability density at (x, y).
    virtual T getPdf(T x, T y) const = 0;
    // Starts the sequence again.
    virtual void restart() = 0;
    // A fixed descriptive name.
    virtual const char* getName() const = 0;
    virtual ~RnBiRng() = default;
};

extern template class QN_BASE_API RnBiRng<float>;
extern template class QN_BASE_API RnBiRng<double>;

}  // namespace Qn
