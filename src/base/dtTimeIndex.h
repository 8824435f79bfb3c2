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
    // DtEx::BadRate for a rate with a zero numerator.
    int64_t getHours(Rational rate) const;
    int64_t getMinutes(Rational rate) const;
    double getSeconds(Rational rate) const;

    // The count at fromRate re-expressed at toRate.
    //  - round_toward_zero: exact integer arithmetic through the reduced factor
    //    of the two rates (the product of that factor's numerator and the count
    //    may wrap for huge counts);
    //  - the other styles go through double precision, so an exact result can
    //    come out one off: round_to_nearest rounds halves upward,
    //    round_toward_infinity / round_toward_neg_infinity are ceiling / floor,
    //    and round_indeterminate rounds away from zero. A value out of the
    //    64-bit range gives the most negative count; any other style gives 0.
    // Raises RationalEx::ExDenominatorZero when the factor has a zero
    // denominator (a zero fromRate numerator).
    DtTimeIndex convert(Rational fromRate, Rational toRate, std::float_round_style style) const;

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
