// Qn::RnRng<T>: the interface of every one-dimensional sample generator.
//
// A generator produces values one at a time (operator(), getSample) or in
// blocks (getSequence), describes the range its values fall in and their
// density, and can start its sequence again. Implementations draw without
// allocating; getSequence runs the draw loop of the concrete class rather than
// calling operator() through the virtual table per element.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <base/qnExport.h>

namespace Qn {

template <class T>
class RnRng {
  public:
    // The next value.
    virtual T operator()() = 0;
    // The next value, into value.
    virtual void getSample(T& value) = 0;
    // The next n values into out[0 .. n-1], in drawing order; n = 0 writes nothing.
    virtual void getSequence(unsigned int n, T* out) = 0;
    // Width, lower and upper end of the range where the values are useful.
    virtual T getEfficientWidth() const = 0;
    virtual T getEfficientMin() const = 0;
    virtual T getEfficientMax() const = 0;
    // Share of the drawn values that fall in the efficient range.
    virtual T getEfficientFraction() const = 0;
    // Probability density at x.
    virtual T getPdf(T x) const = 0;
    // Starts the sequence again from the stored seed.
    virtual void restart() = 0;
    // A fixed descriptive name.
    virtual const char* getName() const = 0;
    virtual ~RnRng() = default;
};

extern template class QN_BASE_API RnRng<float>;
extern template class QN_BASE_API RnRng<double>;

}  // namespace Qn
