// Qn::RnGaussianRng<T>: normally distributed values from a uniform source, by
// Marsaglia's polar method.
//
// Each accepted pair of source values gives two normal values: the second is
// kept as a spare and returned by the next draw. The source is drawn through
// its virtual operator(); it is not owned and must outlive this generator.
// restart() restarts the source and keeps a waiting spare.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <cmath>

#include <base/rnConstants.h>
#include <base/rnEvalRng.h>

namespace Qn {

template <class T>
class RnGaussianRng : public RnEvalRng<T, RnGaussianRng<T>> {
  public:
    // REQUIRES: uniRng not null (asserted "_uniRng"), sigma > 0 ("_sigma > 0").
    RnGaussianRng(RnRng<T>* uniRng, T mean, T sigma);

    // One draw; the body of every other draw.
    // Always inlined: callers in other modules get the draw without a call.
    [[gnu::always_inline]] T eval() {
        T normal;
        if (_hasSpare) {
            _hasSpare = false;
            normal = _spare;
        } else {
            T p, q, s;
            do {
                p = T(2) * (*_uniRng)() - T(1);
                q = T(2) * (*_uniRng)() - T(1);
                s = p * p + q * q;
            } while (s >= T(1));
            const T f = std::sqrt(T(-2) * std::log(s) / s);
            _spare = q * f;
            _hasSpare = true;
            normal = p * f;
        }
        return normal * _sigma + _mean;
    }

    // Four standard deviations wide, centred on the mean.
    T getEfficientWidth() const override;
    T getEfficientMin() const override;
    T getEfficientMax() const override;
    // The share of a normal distribution within four standard deviations of its
    // mean, reported for the range above as the library has always paired them.
    T getEfficientFraction() const override;
    T getPdf(T x) const override;
    void restart() override;
    const char* getName() const override;

  private:
    T _mean;
    T _sigma;
    T _sigmaSquared;
    T _normaliser;
    bool _hasSpare;
    T _spare;
    RnRng<T>* _uniRng;
};

extern template class QN_BASE_API RnEvalRng<float, RnGaussianRng<float>>;
extern template class QN_BASE_API RnEvalRng<double, RnGaussianRng<double>>;
extern template class QN_BASE_API RnGaussianRng<float>;
extern template class QN_BASE_API RnGaussianRng<double>;

}  // namespace Qn

#include <base/rnGaussianRng.imp>
