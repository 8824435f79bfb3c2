// Qn::RnHammersleyMultiRng<T, N>: the Hammersley point set of a given length L.
//
// Point i (i = 0 .. L-1) is (i / L, phi_2(i), phi_3(i), ...): its first
// coordinate spreads the points evenly, the others are radical inverses in the
// first N-1 primes. Unlike a sequence, the set is fixed by its length, and its
// points are more even than those of the Halton sequence of the same count.
// Drawing more than L points fails the assertion "n <= _length"; restart()
// starts the set again.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <cstdint>

#include <base/rnUnitCubeMultiRng.h>
#include <base/rnVanDerCorputRng.h>

namespace Qn {

template <class T, int N>
class RnHammersleyMultiRng : public RnUnitCubeMultiRng<T, N> {
    static_assert(N >= 2, "a Hammersley set has at least two dimensions");

  public:
    // REQUIRES: length >= 1 (asserted "length >= 1").
    explicit RnHammersleyMultiRng(std::uint32_t length);

    void getSample(T* point) override;
    void getSequence(unsigned int n, T* const* out) override;
    // The next draw returns point 0 again.
    void restart() override;
    const char* getName() const override;

    std::uint32_t getLength() const { return _length; }
    // Number of points drawn since the start.
    std::uint32_t getIndex() const { return _index; }

  private:
    void point(std::uint32_t i, T* out) const;
    // Asserts that drawing count more points stays within the set.
    void checkDraw(unsigned int count) const;

    std::uint32_t _length;
    std::uint32_t _index;
    RnVanDerCorputRng<T> _radical[N - 1];
};

extern template class QN_BASE_API RnHammersleyMultiRng<float, 2>;
extern template class QN_BASE_API RnHammersleyMultiRng<double, 2>;
extern template class QN_BASE_API RnHammersleyMultiRng<float, 3>;
extern template class QN_BASE_API RnHammersleyMultiRng<double, 3>;

}  // namespace Qn

#include <base/rnHammersleyMultiRng.imp>
