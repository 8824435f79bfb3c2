// Qn::IntWrap: integer arithmetic that wraps on overflow instead of being
// undefined, and float-to-integer rounding with a defined failure value.
//
// The discrete-time types promise two's-complement wrap-around when a product or
// sum overflows; computing through the unsigned types gives exactly that (the
// same machine instructions, without undefined behaviour). Everything is inline
// and allocation-free.
#pragma once

#include <cstdint>
#include <limits>

namespace Qn {

class IntWrap {
  public:
    static constexpr int32_t neg(int32_t a) {
        return static_cast<int32_t>(0U - static_cast<uint32_t>(a));
    }
    static constexpr int32_t mul(int32_t a, int32_t b) {
        return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
    }

    static constexpr int64_t neg(int64_t a) {
        return static_cast<int64_t>(0ULL - static_cast<uint64_t>(a));
    }
    static constexpr int64_t add(int64_t a, int64_t b) {
        return static_cast<int64_t>(static_cast<uint64_t>(a) + static_cast<uint64_t>(b));
    }
    static constexpr int64_t sub(int64_t a, int64_t b) {
        return static_cast<int64_t>(static_cast<uint64_t>(a) - static_cast<uint64_t>(b));
    }
    static constexpr int64_t mul(int64_t a, int64_t b) {
        return static_cast<int64_t>(static_cast<uint64_t>(a) * static_cast<uint64_t>(b));
    }
    // Quotient truncated toward zero. REQUIRES: b != 0 (a zero divisor is the
    // processor's division fault). The one overflowing case, the most negative
    // value divided by -1, wraps to itself instead of faulting.
    static constexpr int64_t div(int64_t a, int64_t b) { return b == -1 ? neg(a) : a / b; }
    // Remainder with the sign of the dividend. REQUIRES: b != 0.
    static constexpr int64_t rem(int64_t a, int64_t b) { return b == -1 ? 0 : a % b; }

    // Float-to-integer conversions of a float or double x to Int. A value out
    // of Int's range, or not a number, gives Int's most negative value (what
    // the processor's conversion reports), and rounding leaves that value as
    // it is.
    // x truncated toward zero.
    template <class Int, class Float>
    static constexpr Int truncTo(Float x) {
        constexpr Float limit = -static_cast<Float>(std::numeric_limits<Int>::min());
        return x >= -limit && x < limit ? static_cast<Int>(x) : std::numeric_limits<Int>::min();
    }
    // The ceiling of x: truncation, moved up when it went down.
    template <class Int, class Float>
    static constexpr Int ceilTo(Float x) {
        const Int t = truncTo<Int>(x);
        return t != std::numeric_limits<Int>::min() && static_cast<Float>(t) < x ? t + 1 : t;
    }
    // The floor of x: truncation, moved down when it went up.
    template <class Int, class Float>
    static constexpr Int floorTo(Float x) {
        const Int t = truncTo<Int>(x);
        return t != std::numeric_limits<Int>::min() && static_cast<Float>(t) > x ? t - 1 : t;
    }
};

}  // namespace Qn
