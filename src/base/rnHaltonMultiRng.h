// Qn::RnHaltonMultiRng<T, N>: the Halton sequence, one Van der Corput
// component per dimension, each in its own base (by default the first N primes:
// 2, 3 for N = 2 and 2, 3, 5 for N = 3).
//
// Point i is (phi_b1(i), phi_b2(i), ...), phi_b the radical inverse in base b;
// the first draw is the point of index 1. Every component advances its own
// index, so they stay in step while they are drawn together; restart(index)
// puts all of them on the same index.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <cstdint>

#include <base/rnUnitCubeMultiRng.h>
#include <base/rnVanDerCorputRng.h>

namespace Qn {

template <class T, int N>
class RnHaltonMultiRng : public RnUnitCubeMultiRng<T, N> {
  public:
    // The first N primes as bases.
    RnHaltonMultiRng();
    // REQUIRES: every base >= 2.
    explicit RnHaltonMultiRng(const std::uint32_t (&bases)[N]);

    void getSample(T* point) override;
    void getSequence(unsigned int n, T* const* out) override;
    // Puts every component on index: the next point is that of index + 1.
    void restart(std::uint32_t index);
    // Puts every component on index 0.
    void restart() override;
    const char* getName() const override;

    // Copies the N bases into bases[0 .. N-1].
    void getPrimeNumbers(std::uint32_t* bases) const;
    // Replaces the bases from bases[0 .. N-1]; the indices are kept.
    void setPrimeNumbers(const std::uint32_t* bases);

  private:
    RnVanDerCorputRng<T> _components[N];
};

extern template class QN_BASE_API RnHaltonMultiRng<float, 2>;
extern template class QN_BASE_API RnHaltonMultiRng<double, 2>;
extern template class QN_BASE_API RnHaltonMultiRng<float, 3>;
extern template class QN_BASE_API RnHaltonMultiRng<double, 3>;

}  // namespace Qn

#include <base/rnHaltonMultiRng.imp>
