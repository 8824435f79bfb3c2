// Qn::RnUnitIntervalRng<T, Gen>: the common part of the generators whose values
// are spread over the unit interval [0, 1) with density 1: the range queries,
// the density and the scaled draws. Gen provides the inline draw eval() (see
// Qn::RnEvalRng).
#pragma once

#include <base/rnEvalRng.h>

namespace Qn {

template <class T, class Gen>
class RnUnitIntervalRng : public RnEvalRng<T, Gen> {
  public:
    // The unit interval: minimum 0, maximum, width and useful fraction 1.
    T getEfficientWidth() const override;
    T getEfficientMin() const override;
    T getEfficientMax() const override;
    T getEfficientFraction() const override;
    // 1 for 0 <= x < 1, else 0 (also for a not-a-number x).
    T getPdf(T x) const override;

    // One draw mapped to [min, max): min + (max - min) * value.
    T eval(T min, T max) { return min + (max - min) * this->self().eval(); }
    // One draw scaled: scale * value.
    T eval(T scale) { return scale * this->self().eval(); }
};

}  // namespace Qn

#include <base/rnUnitIntervalRng.imp>
