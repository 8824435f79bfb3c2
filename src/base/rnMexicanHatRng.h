// Qn::RnMexicanHatRng<T>: values with a symmetric triangular (tent) density on
// [centre - width/2, centre + width/2], for filter kernels.
//
// A draw inverts the tent's cumulative distribution, one branch per half, with
// a source value of 0.5 going to the upper branch; so a stratified or
// low-discrepancy source stays well spread. The source is not owned and must
// outlive this generator; restart() restarts it.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <cmath>

#include <base/rnEvalRng.h>

namespace Qn {

template <class T>
class RnMexicanHatRng : public RnEvalRng<T, RnMexicanHatRng<T>> {
  public:
    // Centre 0, width 1. REQUIRES: rng not null (asserted "rng != 0").
    explicit RnMexicanHatRng(RnRng<T>* rng);
    // REQUIRES: rng not null ("rng != 0"), width > 0 ("_halfwidth > 0").
    RnMexicanHatRng(RnRng<T>* rng, T centre, T width);

    // One draw; the body of every other draw.
    // Always inlined: callers in other modules get the draw without a call.
    [[gnu::always_inline]] T eval() {
        const T u = (*_uniRng)();
        if (u >= T(0.5)) return (T(1) - std::sqrt((T(1) - u) * T(2))) * _halfwidth + _centre;
        return (std::sqrt(u * T(2)) - T(1)) * _halfwidth + _centre;
    }

    T getEfficientWidth() const override;
    T getEfficientMin() const override;
    T getEfficientMax() const override;
    T getEfficientFraction() const override;
    // The tent: 2/width at the centre, falling linearly to 0 at both ends.
    T getPdf(T x) const override;
    void restart() override;
    const char* getName() const override;

  private:
    // Raises the construction checks, with the place of the constructor form.
    void check(RnRng<T>* rng, int firstLine) const;

    T _centre;
    T _width;
    T _halfwidth;
    T _inverseHalfwidth;
    RnRng<T>* _uniRng;
};

extern template class QN_BASE_API RnEvalRng<float, RnMexicanHatRng<float>>;
extern template class QN_BASE_API RnEvalRng<double, RnMexicanHatRng<double>>;
extern template class QN_BASE_API RnMexicanHatRng<float>;
extern template class QN_BASE_API RnMexicanHatRng<double>;

}  // namespace Qn

#include <base/rnMexicanHatRng.imp>
