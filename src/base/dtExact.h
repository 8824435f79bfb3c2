// Qn::DtExact: exact quotients of 128-bit integers with a chosen rounding, the
// arithmetic of the exact time conversions (Qn::DtTimeIndex::convertExact,
// Qn::DtTimeMark::evalTimeExact, Qn::DtRefTimeFactory::createExact).
//
// A count (64 bits) times the two 32-bit terms of two rates needs 126 bits, so
// every product of a conversion is formed in 128 bits and divided once: the
// result is the exact rational result rounded as asked, never a double. A
// result outside the signed 64-bit range raises Qn::DtEx::ExOverflow instead of
// wrapping. Stateless and thread-safe.
//
//   int64_t frames = Qn::DtExact::divide(Qn::DtInt128{1000000000} * 30000,
//                                        Qn::DtInt128{1001} * 1000000000,
//                                        Qn::DtRounding::Floor);   // 29
#pragma once

#include <cstdint>
#include <limits>

#include <base/qnExport.h>

namespace Qn {

__extension__ typedef __int128 DtInt128;

// How an exact conversion rounds a quotient that is not whole. The first five
// have the numbers of std::float_round_style and the meanings that
// DtTimeIndex::convert gives those styles; HalfEven is round half to even.
enum class DtRounding : int {
    AwayFromZero = -1,  // std::round_indeterminate
    TowardZero = 0,     // std::round_toward_zero
    HalfUp = 1,         // std::round_to_nearest: halves toward +infinity (-2.5 gives -2)
    Ceiling = 2,        // std::round_toward_infinity
    Floor = 3,          // std::round_toward_neg_infinity
    HalfEven = 4,       // halves to the even neighbour (2.5 gives 2, 3.5 gives 4)
};

class QN_BASE_API DtExact {
  public:
    DtExact() = delete;

    // numerator / denominator rounded as asked. REQUIRES: denominator > 0.
    // Raises DtEx::ExOverflow when the result does not fit in 64 bits.
    static int64_t divide(DtInt128 numerator, DtInt128 denominator, DtRounding rounding) {
        if (numerator >= Min64 && numerator <= Max64 && denominator <= Max64) [[likely]] {
            return divide64(static_cast<int64_t>(numerator), static_cast<int64_t>(denominator),
                            rounding);
        }
        return divide128(numerator, denominator, rounding);
    }

    // numerator x factor / denominator rounded as asked, for a numerator of up
    // to 127 bits whose product with factor may not fit in 128 bits.
    // REQUIRES: 0 < denominator < 2^94, |factor| < 2^32. Raises DtEx::ExOverflow
    // when the result does not fit in 64 bits.
    static int64_t mulDivide(DtInt128 numerator, int64_t factor, DtInt128 denominator,
                             DtRounding rounding);

    // a + b, raising DtEx::ExOverflow instead of wrapping.
    static int64_t add(int64_t a, int64_t b) {
        int64_t sum;
        if (__builtin_add_overflow(a, b, &sum)) [[unlikely]]
            throwOverflow();
        return sum;
    }

    // a - b, raising DtEx::ExOverflow instead of wrapping.
    static int64_t subtract(int64_t a, int64_t b) {
        int64_t difference;
        if (__builtin_sub_overflow(a, b, &difference)) [[unlikely]]
            throwOverflow();
        return difference;
    }

    [[noreturn]] static void throwOverflow();

  private:
    static constexpr DtInt128 Min64 = std::numeric_limits<int64_t>::min();
    static constexpr DtInt128 Max64 = std::numeric_limits<int64_t>::max();

    // The rounded value of f + r / d, given f (the floor of the quotient), the
    // remainder 0 <= r < d and the denominator d (r is compared with d - r, as
    // 2r may not fit).
    template <class Int>
    static Int round(Int f, Int r, Int d, DtRounding rounding) {
        if (r == 0) return f;
        switch (rounding) {
            case DtRounding::Floor:
                return f;
            case DtRounding::Ceiling:
                return f + 1;
            case DtRounding::TowardZero:
                return f < 0 ? f + 1 : f;
            case DtRounding::AwayFromZero:
                return f < 0 ? f : f + 1;
            case DtRounding::HalfUp:
                return r >= d - r ? f + 1 : f;
            case DtRounding::HalfEven:
                return r > d - r || (r == d - r && f % 2 != 0) ? f + 1 : f;
        }
        throwBadRounding();
    }
    static int64_t divide64(int64_t numerator, int64_t denominator, DtRounding rounding) {
        int64_t f = numerator / denominator;
        int64_t r = numerator % denominator;
        if (r < 0) {
            f -= 1;
            r += denominator;
        }
        // With a remainder the denominator is at least 2, so f + 1 and f - 1
        // stay in range.
        return round(f, r, denominator, rounding);
    }
    static int64_t divide128(DtInt128 numerator, DtInt128 denominator, DtRounding rounding);
    // value, or DtEx::ExOverflow when it does not fit in 64 bits.
    static int64_t checked(DtInt128 value);
    [[noreturn]] static void throwBadRounding();
};

}  // namespace Qn
