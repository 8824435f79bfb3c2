// Qn::DtTime: an exact time, a count of ticks and the rate of those ticks in
// ticks per second. 100 ticks at 24/1 is 4 1/6 seconds; nothing is rounded.
//
// Times of equal rates combine with a single integer operation. Times of
// different rates are first converted (toward zero) to a shared rate: the
// reduced product of the two rates, clamped to at most one million ticks per
// second and at least one tick per million seconds, so that a shared rate
// always stays within reach of 32-bit terms. For integer rates the product is
// a common multiple and the conversion exact: 24/1 and 25/1 share 600/1.
// Comparisons never convert: they compare exact cross products (and assume
// positive rates). Overflow is not detected anywhere; integer results wrap.
// Where that matters, the exact forms are convertRateExact (instead of
// convertRate) and Qn::DtTimeLess (instead of the comparison operators).
// A plain value type: no locking, no allocation.
//
//   Qn::DtTime film(10, 24, 1), pal(10, 25, 1);
//   Qn::DtTime sum = film + pal;        // 490 ticks at 600/1
//   bool same = Qn::DtTime(1, 24, 1) == Qn::DtTime(25, 600, 1);   // true
#pragma once

#include <iosfwd>

#include <base/dtTimeIndex.h>
#include <base/rational.h>

namespace Qn {

class QN_BASE_API DtTime {
  public:
    // 0 ticks at 1/1.
    constexpr DtTime() = default;
    // Raises DtEx::BadRate when the rate's numerator is zero.
    DtTime(DtTimeIndex count, Rational rate) : DtTime(count, rate, BadRateLine) {}
    // The rate numerator/denominator; raises RationalEx::ExDenominatorZero for
    // a zero denominator, then DtEx::BadRate for a zero numerator.
    DtTime(DtTimeIndex count, int numerator, int denominator)
        : DtTime(count, Rational(numerator, denominator), BadRateLineIntegers) {}

    DtTimeIndex getCount() const { return _count; }
    Rational getRate() const { return _rate; }
    bool isRateEqual(const DtTime& other) const { return _rate == other._rate; }

    // The same instant at newRate, the count converted toward zero with
    // DtTimeIndex::convert, whose 32-bit factor wraps for large rates (see
    // there). Raises DtEx::BadRate when newRate's numerator is zero.
    DtTime convertRate(Rational newRate) const;
    // The same instant at newRate, the count converted exactly
    // (DtTimeIndex::convertExact) and rounded as asked. Raises DtEx::BadRate
    // when newRate's numerator is zero, DtEx::ExOverflow when the count does
    // not fit in 64 bits.
    DtTime convertRateExact(Rational newRate, DtRounding rounding = DtRounding::TowardZero) const {
        if (newRate == _rate) return *this;
        return DtTime(_count.convertExact(_rate, newRate, rounding), newRate);
    }

    // The rate two times of rates a and b are combined at (see above).
    static Rational getSharedRate(Rational a, Rational b);

    // Arithmetic with an index acts on the count and keeps the rate. Arithmetic
    // with a time acts on the two counts at the shared rate (the rate itself
    // when equal); products and quotients are of the counts as they stand, with
    // no unit correction, and a zero divisor is the processor's division fault.
#define QN_DT_TIME_OPERATOR(sym, op)                                            \
    DtTime& operator sym##=(DtTimeIndex n) {                                    \
        _count sym## = n;                                                       \
        return *this;                                                           \
    }                                                                           \
    DtTime& operator sym##=(const DtTime& other) { return combine(other, op); } \
    DtTime operator sym(DtTimeIndex n) const {                                  \
        DtTime result(*this);                                                   \
        return result sym## = n;                                                \
    }                                                                           \
    DtTime operator sym(const DtTime& other) const {                            \
        DtTime result(*this);                                                   \
        return result sym## = other;                                            \
    }
    QN_DT_TIME_OPERATOR(+, Op::Add)
    QN_DT_TIME_OPERATOR(-, Op::Sub)
    QN_DT_TIME_OPERATOR(*, Op::Mul)
    QN_DT_TIME_OPERATOR(/, Op::Div)
    QN_DT_TIME_OPERATOR(%, Op::Rem)
#undef QN_DT_TIME_OPERATOR

    // Step the count by one tick.
    DtTime& operator++() {
        ++_count;
        return *this;
    }
    DtTime& operator--() {
        --_count;
        return *this;
    }
    DtTime operator++(int) {
        DtTime old = *this;
        ++_count;
        return old;
    }
    DtTime operator--(int) {
        DtTime old = *this;
        --_count;
        return old;
    }

    // Writes "(count @ (n/d=value))".
    std::ostream& dump(std::ostream& stream) const { return dump(stream, _count, _rate); }
    // The text form of a count at a rate, shared by the time classes.
    static std::ostream& dump(std::ostream& stream, DtTimeIndex count, Rational rate);

  private:
    enum class Op { Add, Sub, Mul, Div, Rem };
    static constexpr int BadRateLine = 95;
    static constexpr int BadRateLineIntegers = 110;

    DtTime(DtTimeIndex count, Rational rate, int badRateLine) : _count(count), _rate(rate) {
        if (rate.getNumerator() == 0) [[unlikely]]
            throwBadRate(badRateLine);
    }
    [[noreturn]] static void throwBadRate(int line);

    static DtTimeIndex apply(DtTimeIndex a, DtTimeIndex b, Op op) {
        switch (op) {
            case Op::Add:
                return a += b;
            case Op::Sub:
                return a -= b;
            case Op::Mul:
                return a *= b;
            case Op::Div:
                return a /= b;
            case Op::Rem:
                return a %= b;
        }
        return a;
    }
    DtTime& combine(const DtTime& other, Op op) {
        if (_rate == other._rate) [[likely]] {
            _count = apply(_count, other._count, op);
        } else {
            *this = combinedAtSharedRate(*this, other, op);
        }
        return *this;
    }
    // By value, so that a time combined in a loop can stay in registers.
    static DtTime combinedAtSharedRate(DtTime a, DtTime b, Op op);

    DtTimeIndex _count;
    Rational _rate;
};

// a.count x a.denominator x b.numerator and b.count x b.denominator x
// a.numerator: the two sides of the exact comparison of a and b. Each is a
// 64-bit product that wraps once it passes 2^63 (a count of 2^32 ticks at
// 30000/1001 against a time at 1000000000/1 already does), and a negative rate
// numerator reverses the sense of the comparisons; Qn::DtTimeLess orders any
// two times exactly.
inline DtTimeIndex crossMultLhs(const DtTime& a, const DtTime& b) {
    return IntWrap::mul(int64_t{a.getRate().getDenominator()} * b.getRate().getNumerator(),
                        int64_t{a.getCount()});
}
inline DtTimeIndex crossMultRhs(const DtTime& a, const DtTime& b) {
    return IntWrap::mul(int64_t{b.getRate().getDenominator()} * a.getRate().getNumerator(),
                        int64_t{b.getCount()});
}

inline bool operator<(const DtTime& a, const DtTime& b) {
    return int64_t{crossMultLhs(a, b)} < int64_t{crossMultRhs(a, b)};
}
inline bool operator<=(const DtTime& a, const DtTime& b) {
    return int64_t{crossMultLhs(a, b)} <= int64_t{crossMultRhs(a, b)};
}
inline bool operator==(const DtTime& a, const DtTime& b) {
    return int64_t{crossMultLhs(a, b)} == int64_t{crossMultRhs(a, b)};
}
inline bool operator>=(const DtTime& a, const DtTime& b) {
    return int64_t{crossMultLhs(a, b)} >= int64_t{crossMultRhs(a, b)};
}
inline bool operator>(const DtTime& a, const DtTime& b) {
    return int64_t{crossMultLhs(a, b)} > int64_t{crossMultRhs(a, b)};
}
inline bool operator!=(const DtTime& a, const DtTime& b) {
    return int64_t{crossMultLhs(a, b)} != int64_t{crossMultRhs(a, b)};
}

inline std::ostream& operator<<(std::ostream& stream, const DtTime& time) {
    return time.dump(stream);
}

}  // namespace Qn
