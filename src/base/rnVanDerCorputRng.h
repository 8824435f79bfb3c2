// Qn::RnVanDerCorputRng<T>: the radical-inverse (Van der Corput) sequence.
//
// Draw number i returns the digits of i in the generator's base mirrored
// around the radix point: base 2 gives 0.5, 0.25, 0.75, 0.125, 0.625, ...
// The index is a 32-bit counter; after 2^32 - 1 draws it wraps and the next
// draw returns 0, after which the sequence starts again. The powers of 1/base
// are built by repeated multiplication in T, so the float instance carries
// single-precision rounding.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <cstdint>
#include <limits>

#include <base/mathInt.h>
#include <base/rnUnitIntervalRng.h>

namespace Qn {

template <class T>
class RnVanDerCorputRng : public RnUnitIntervalRng<T, RnVanDerCorputRng<T>> {
  public:
    // Base 2, index 0.
    RnVanDerCorputRng() : RnVanDerCorputRng(2) {}
    // REQUIRES: base >= 2 (asserted "base >= 2").
    explicit RnVanDerCorputRng(std::uint32_t base);

    // The radical inverse of index in the generator's base.
    [[gnu::always_inline]] T radicalInverse(std::uint32_t index) const {
        // In base 2 the digit loop sums powers of two; while the sum is exact in T
        // (always for double, below 2^24 for float) it equals the reversed bits.
        if (_base == 2 && (std::numeric_limits<T>::digits >= 32 ||
                           index < (std::uint32_t(1) << (std::numeric_limits<T>::digits % 32))))
            return T(MathInt::reverseBits(index)) * T(0x1p-32);
        T value = 0;
        T factor = _inverseBase;
        do {
            const std::uint32_t digit = index % _base;
            index /= _base;
            if (digit != 0) value += T(digit) * factor;
            factor *= _inverseBase;
        } while (index != 0);
        return value;
    }

    // One draw: the radical inverse of the next index (0 once the index wraps).
    // Always inlined: callers in other modules get the draw without a call.
    [[gnu::always_inline]] T eval() { return radicalInverse(++_index); }
    using RnUnitIntervalRng<T, RnVanDerCorputRng<T>>::eval;

    // Sets the index: the next draw is that of index + 1.
    void restart(std::uint32_t index) { _index = index; }
    // Sets the index to 0.
    void restart() override;
    const char* getName() const override;

    std::uint32_t getBase() const { return _base; }
    // Changes the base and keeps the index. REQUIRES: base >= 2.
    void setBase(std::uint32_t base);
    std::uint32_t getIndex() const { return _index; }

  private:
    std::uint32_t _base;
    T _inverseBase;
    std::uint32_t _index;
};

extern template class QN_BASE_API RnEvalRng<float, RnVanDerCorputRng<float>>;
extern template class QN_BASE_API RnEvalRng<double, RnVanDerCorputRng<double>>;
extern template class QN_BASE_API RnUnitIntervalRng<float, RnVanDerCorputRng<float>>;
extern template class QN_BASE_API RnUnitIntervalRng<double, RnVanDerCorputRng<double>>;
extern template class QN_BASE_API RnVanDerCorputRng<float>;
extern template class QN_BASE_API RnVanDerCorputRng<double>;

}  // namespace Qn

#include <base/rnVanDerCorputRng.imp>
