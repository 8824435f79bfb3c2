// Qn::MathFloat: classification, tolerant comparison and neighbours of float and
// double values, each computed in the precision of its argument.
//
// Every operation is inline, allocation-free and thread-safe. A NaN is never
// equal to, less or greater than anything, tolerantly or not.
//
//   if (!Qn::MathFloat::isFiniteNonNegative(weight)) reject(weight);
//   if (Qn::MathFloat::isNearlyEqual(area, 1.0, 1e-12)) ...
//   const float below = Qn::MathFloat::nextBelow(1.0f);   // 0.99999994f
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace Qn {

class MathFloat {
  public:
    MathFloat() = delete;

    // The kinds of value a float or double can hold.
    enum Class { Zero, Subnormal, Normal, Infinite, NotANumber };

    // The kind of x; both zeros are Zero.
    template <class T>
    static Class classify(T x) {
        switch (std::fpclassify(x)) {
            case FP_ZERO:
                return Zero;
            case FP_SUBNORMAL:
                return Subnormal;
            case FP_INFINITE:
                return Infinite;
            case FP_NAN:
                return NotANumber;
            default:
                return Normal;
        }
    }

    template <class T>
    static bool isNan(T x) {
        return std::isnan(x);
    }
    template <class T>
    static bool isInfinite(T x) {
        return std::isinf(x);
    }
    // Neither infinite nor NaN.
    template <class T>
    static bool isFinite(T x) {
        return std::isfinite(x);
    }
    // Finite and at least 0 (-0 included): a weight, a length, a duration.
    template <class T>
    static bool isFiniteNonNegative(T x) {
        return x >= T(0) && x <= std::numeric_limits<T>::max();
    }
    // Finite and above 0: a width or a period that can be divided by.
    template <class T>
    static bool isFinitePositive(T x) {
        return x > T(0) && x <= std::numeric_limits<T>::max();
    }

    // Ordering with an absolute tolerance: values closer than tolerance are
    // neither less nor greater. isLessOrNear is "less, or within tolerance" and
    // isGreaterOrNear the mirror; two values exactly tolerance apart are neither
    // near nor ordered by the strict forms. Not a strict weak ordering: never
    // sort with it.
    template <class T>
    static bool isLess(T a, T b, T tolerance) {
        return a < b - tolerance;
    }
    template <class T>
    static bool isLessOrNear(T a, T b, T tolerance) {
        return a < b + tolerance;
    }
    template <class T>
    static bool isGreater(T a, T b, T tolerance) {
        return a > b + tolerance;
    }
    template <class T>
    static bool isGreaterOrNear(T a, T b, T tolerance) {
        return a > b - tolerance;
    }

    // Whether a and b differ by at most the larger of absolute and
    // relative x max(|a|, |b|). Equal infinities are nearly equal; an infinity
    // and a finite value never are.
    template <class T>
    static bool isNearlyEqual(T a, T b, T relative, T absolute = T(0)) {
        if (a == b) return true;
        const T difference = std::fabs(a - b);
        if (!std::isfinite(difference)) return false;
        const T scale = std::fmax(std::fabs(a), std::fabs(b));
        return difference <= std::fmax(absolute, relative * scale);
    }

    // The number of representable values from a to b (0 when equal, the two
    // zeros included; 1 between neighbours). NaN gives the largest count.
    template <class T>
    static uint64_t ulpDistance(T a, T b) {
        if (std::isnan(a) || std::isnan(b)) return std::numeric_limits<uint64_t>::max();
        const int64_t ia = orderedBits(a);
        const int64_t ib = orderedBits(b);
        return ia > ib ? static_cast<uint64_t>(ia) - static_cast<uint64_t>(ib)
                       : static_cast<uint64_t>(ib) - static_cast<uint64_t>(ia);
    }

    // The representable neighbours of x: nextBelow(1.0f) is the largest float
    // below 1. The lowest value's neighbour below is minus infinity.
    template <class T>
    static T nextBelow(T x) {
        return std::nextafter(x, -std::numeric_limits<T>::infinity());
    }
    template <class T>
    static T nextAbove(T x) {
        return std::nextafter(x, std::numeric_limits<T>::infinity());
    }

    // x to the integer power n by repeated squaring, in the precision of x; a
    // negative n gives the reciprocal of x to the power -n (or, when that power
    // overflows, 1/x to the power -n, so that 2^-149 is the smallest float).
    // pow(x, 0) is 1.
    template <class T>
    static T pow(T x, int n) {
        static_assert(std::is_floating_point_v<T>);
        const unsigned int e =
            n < 0 ? 0U - static_cast<unsigned int>(n) : static_cast<unsigned int>(n);
        if (n >= 0) return powUnsigned(x, e);
        const T power = powUnsigned(x, e);
        return std::isinf(power) && !std::isinf(x) ? powUnsigned(T(1) / x, e) : T(1) / power;
    }

  private:
    template <class T>
    static T powUnsigned(T x, unsigned int e) {
        T result = T(1);
        for (T factor = x; e != 0; e >>= 1, factor *= factor)
            if ((e & 1U) != 0) result *= factor;
        return result;
    }

    // The bits of x as a signed integer that orders like x, with both zeros at 0.
    template <class T>
    static int64_t orderedBits(T x) {
        using Bits = std::conditional_t<sizeof(T) == 4, int32_t, int64_t>;
        const Bits bits = std::bit_cast<Bits>(x);
        const int64_t magnitude = bits & std::numeric_limits<Bits>::max();
        return bits < 0 ? -magnitude : magnitude;
    }
};

}  // namespace Qn
