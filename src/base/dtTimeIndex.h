// Qn::DtTimeIndex: a signed 64-bit count of ticks, the count of every time.
//
// Arithmetic wraps on overflow (it is not detected); division and remainder
// truncate toward zero and require a non-zero divisor. A plain value type: no
// locking, no allocation.
//
//   Qn::DtTimeIndex frame = 48;
//   frame += 2;
//   int64_t at30 = frame.convert(Qn::Rational(24, 1), Qn::Rational(30, 1),
//                                std::round_to_nearest);     // 63
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>

#include <base/dtExact.h>
#include <base/intWrap.h>
#include <base/rational.h>

namespace Qn {

class QN_BASE_API DtTimeIndex {
  public:
    constexpr DtTimeIndex(int64_t count = 0) : _count(count) {}
    constexpr operator int64_t() const { return _count; }

    DtTimeIndex& operator+=(int64_t n) { return set(IntWrap::add(_count, n)); }
    DtTimeIndex& operator-=(int64_t n) { return set(IntWrap::sub(_count, n)); }
    DtTimeIndex& operator*=(int64_t n) { return set(IntWrap::mul(_count, n)); }
    DtTimeIndex& operator/=(int64_t n) { return set(IntWrap::div(_count, n)); }
    DtTimeIndex& operator%=(int64_t n) { return set(IntWrap::rem(_count, n)); }
    DtTimeIndex& operator++() { return *this += 1; }
    DtTimeIndex& operator--() { return *this -= 1; }
    DtTimeIndex operator++(int) {
        DtTimeIndex old = *this;
        ++*this;
        return old;
    }
    DtTimeIndex operator--(int) {
        DtTimeIndex old = *this;
        --*this;
        return old;
    }

    float getFloat() const { return static_cast<float>(_count); }
    double getDouble() const { return static_cast<double>(_count); }

    // The count read as a time at rate (ticks per second), broken down as a
    // clock: whole hours, the minutes within the hour, and the seconds within
    // the minute with their fraction. Negative counts give parts <= 0. Raise
    // DtEx::BadRate for a rate with a zero numerator. count x denominator is a
    // 64-bit product that wraps for counts beyond 2^63 / denominator;
    // Qn::DtTimecode gives the exact clock text of a time.
    int64_t getHours(Rational rate) const;
    int64_t getMinutes(Rational rate) const;
    double getSeconds(Rational rate) const;

    // The count at fromRate re-expressed at toRate.
    //  - round_toward_zero: integer arithmetic through the reduced factor of
    //    the two rates. The factor's terms (fromRate.denominator x
    //    toRate.numerator and toRate.denominator x fromRate.numerator) are
    //    32-bit products that wrap for large rates: 1000000000 ticks at
    //    1000000000/1 (the nanosecond counter) to 30000/1001 give 110043, not
    //    29. The product of the factor's numerator and the count wraps too.
    //  - the other styles go through double precision, so an exact result can
    //    come out one off (120 ticks at 24/1 to 25/1 with round_toward_infinity
    //    give 126, not 125), and counts beyond 2^53 lose their low digits:
    //    round_to_nearest rounds halves upward,
    //    round_toward_infinity / round_toward_neg_infinity are ceiling / floor,
    //    and round_indeterminate rounds away from zero. A value out of the
    //    64-bit range gives the most negative count; any other style gives 0.
    // Use convertExact for the exact result.
    // Raises RationalEx::ExDenominatorZero when the factor has a zero
    // denominator (a zero fromRate numerator).
    DtTimeIndex convert(Rational fromRate, Rational toRate, std::float_round_style style) const;

    // The count at fromRate re-expressed at toRate exactly: count x
    // fromRate.denominator x toRate.numerator / (fromRate.numerator x
    // toRate.denominator), formed in 128 bits and rounded once as asked. It
    // equals convert wherever convert is exact. Raises DtEx::BadRate for a zero
    // fromRate numerator and DtEx::ExOverflow when the result does not fit.
    //
    //   DtTimeIndex(120).convertExact(Rational(24, 1), Rational(25, 1),
    //                                 DtRounding::Ceiling);   // 125
    DtTimeIndex convertExact(Rational fromRate, Rational toRate, DtRounding rounding) const;

  private:
    DtTimeIndex& set(int64_t count) {
        _count = count;
        return *this;
    }
    // Whole seconds of the count at rate, truncated toward zero.
    int64_t wholeSeconds(Rational rate) const;

    int64_t _count;
};

// Two-operand arithmetic on indices, and with plain integers on either side.
#define QN_DT_TIME_INDEX_OPERATOR(sym)                                                    \
    inline DtTimeIndex operator sym(DtTimeIndex a, DtTimeIndex b) { return a sym## = b; } \
    template <std::integral I>                                                            \
    DtTimeIndex operator sym(DtTimeIndex a, I b) {                                        \
        return a sym## = static_cast<int64_t>(b);                                         \
    }                                                                                     \
    template <std::integral I>                                                            \
    DtTimeIndex operator sym(I a, DtTimeIndex b) {                                        \
        DtTimeIndex result(static_cast<int64_t>(a));                                      \
        return result sym## = b;                                                          \
    }
QN_DT_TIME_INDEX_OPERATOR(+)
QN_DT_TIME_INDEX_OPERATOR(-)
QN_DT_TIME_INDEX_OPERATOR(*)
QN_DT_TIME_INDEX_OPERATOR(/)
QN_DT_TIME_INDEX_OPERATOR(%)
#undef QN_DT_TIME_INDEX_OPERATOR

}  // namespace Qn
