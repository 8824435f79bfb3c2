// Qn::Rational: an exact fraction of two 32-bit integers, the type of every rate
// in the discrete-time classes.
//
// A value is kept in lowest terms with a positive denominator, so equality is
// two integer compares. The ordering operators, by contrast, compare the values
// as doubles with a tolerance of 1e-7: two rates closer than that are neither
// less nor greater, yet may be unequal. That ordering is not a strict weak
// ordering; do not use it to sort. A plain value type: no locking, no allocation.
//
//   Qn::Rational ntsc(30000, 1001);   // 29.97 frames per second
//   Qn::Rational r(6, -4);            // stored as -3/2
#pragma once

#include <bit>
#include <cstdint>
#include <iosfwd>

#include <base/mathFloat.h>
#include <base/qnExport.h>
#include <base/rationalEx.h>

namespace Qn {

class QN_BASE_API Rational {
  public:
    // 1/1, stored as it is.
    constexpr Rational() = default;
    // The reduced value of numerator/denominator (see setValue).
    Rational(int numerator, int denominator) { setValue(numerator, denominator); }

    // Stores numerator/denominator in lowest terms with a positive denominator;
    // zero becomes 0/1. Raises RationalEx::ExDenominatorZero on a zero
    // denominator and keeps the previous value. Overflow is not detected: a
    // denominator of the most negative integer cannot be negated and stays so.
    void setValue(int numerator, int denominator);

    constexpr int getNumerator() const { return _numerator; }
    constexpr int getDenominator() const { return _denominator; }

    // numerator / denominator in the named precision (each term converted first).
    double getDouble() const {
        return static_cast<double>(_numerator) / static_cast<double>(_denominator);
    }
    float getFloat() const {
        return static_cast<float>(_numerator) / static_cast<float>(_denominator);
    }
    // denominator / numerator; a zero value gives an infinity.
    double getReciprocalDouble() const {
        return static_cast<double>(_denominator) / static_cast<double>(_numerator);
    }
    float getReciprocalFloat() const {
        return static_cast<float>(_denominator) / static_cast<float>(_numerator);
    }

    // Writes "(n/d=value)", the value with the stream's current formatting.
    void dump(std::ostream& stream) const;

    // Both terms equal (compared as one 64-bit word).
    friend constexpr bool operator==(const Rational& a, const Rational& b) {
        return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b);
    }
    friend constexpr bool operator!=(const Rational& a, const Rational& b) { return !(a == b); }

    // Tolerance of the ordering operators.
    static constexpr double OrderingTolerance = 1e-7;

  private:
    // Divides both terms by their greatest common divisor; a zero numerator
    // leaves the denominator as it is.
    void lowestTerms();

    int _numerator = 1;
    int _denominator = 1;
};

inline bool operator<(const Rational& a, const Rational& b) {
    return MathFloat::isLess(a.getDouble(), b.getDouble(), Rational::OrderingTolerance);
}
inline bool operator<=(const Rational& a, const Rational& b) {
    return MathFloat::isLessOrNear(a.getDouble(), b.getDouble(), Rational::OrderingTolerance);
}
inline bool operator>(const Rational& a, const Rational& b) {
    return MathFloat::isGreater(a.getDouble(), b.getDouble(), Rational::OrderingTolerance);
}
inline bool operator>=(const Rational& a, const Rational& b) {
    return MathFloat::isGreaterOrNear(a.getDouble(), b.getDouble(), Rational::OrderingTolerance);
}

}  // namespace Qn
