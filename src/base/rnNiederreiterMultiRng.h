// Qn::RnNiederreiterMultiRng<T, N>: the base-2 Niederreiter sequence in N
// dimensions (matrices: see rnNiederreiterMatrix.h).
//
// Points are visited in Gray-code order, so each draw changes one column per
// dimension: draw i returns the point of Gray code i ^ (i >> 1), and the first
// draw is that of i = 1. Every power-of-two block of points starting at a
// multiple of its size is a (t, m, N)-net. The index is a 32-bit counter that
// wraps to the origin after 2^32 - 1 draws. Coordinates carry 32 binary
// digits, cut to the precision of T, and lie in [0, 1).
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include <base/rnNiederreiterMatrix.h>
#include <base/rnUnitCubeMultiRng.h>

namespace Qn {

template <class T, int N>
class RnNiederreiterMultiRng : public RnUnitCubeMultiRng<T, N> {
  public:
    RnNiederreiterMultiRng();

    void getSample(T* point) override;
    void getSequence(unsigned int n, T* const* out) override;
    // Moves to index: the next draw is that of index + 1.
    void restart(std::uint32_t index);
    void restart() override;
    const char* getName() const override;

    std::uint32_t getIndex() const { return _index; }

  private:
    static constexpr int Digits = RnNiederreiterMatrix::Digits;
    // Keep as many leading digits as T holds exactly, so that no value rounds up to 1.
    static constexpr int Shift =
        std::numeric_limits<T>::digits < Digits ? Digits - std::numeric_limits<T>::digits : 0;

    static T toUnit(std::uint32_t fraction) {
        constexpr T scale = T(1) / T(std::uint64_t(1) << (Digits - Shift));
        return T(fraction >> Shift) * scale;
    }
    // Advances the index and the Gray-code point by one column per dimension.
    void advance() {
        ++_index;
        const int bit = _index != 0 ? std::countr_zero(_index) : Digits - 1;
        for (int k = 0; k < N; ++k) _point[k] ^= _columns[k][bit];
    }

    std::uint32_t _columns[N][Digits];
    std::uint32_t _point[N];
    std::uint32_t _index;
};

extern template class QN_BASE_API RnNiederreiterMultiRng<float, 2>;
extern template class QN_BASE_API RnNiederreiterMultiRng<double, 2>;
extern template class QN_BASE_API RnNiederreiterMultiRng<float, 3>;
extern template class QN_BASE_API RnNiederreiterMultiRng<double, 3>;

}  // namespace Qn

#include <base/rnNiederreiterMultiRng.imp>
