#include <base/dtTimeIndex.h>

#include <base/dtEx.h>

namespace Qn {

int64_t DtTimeIndex::wholeSeconds(Rational rate) const {
    if (rate.getNumerator() == 0) QN_THROW(DtEx::BadRate);
    return IntWrap::div(IntWrap::mul(_count, int64_t{rate.getDenominator()}), rate.getNumerator());
}

int64_t DtTimeIndex::getHours(Rational rate) const { return wholeSeconds(rate) / 3600; }

int64_t DtTimeIndex::getMinutes(Rational rate) const {
    const int64_t s = wholeSeconds(rate);
    return (s - (s / 3600) * 3600) / 60;
}

double DtTimeIndex::getSeconds(Rational rate) const {
    const int64_t s = wholeSeconds(rate);
    const double x = static_cast<double>(_count) * static_cast<double>(rate.getDenominator()) /
                     static_cast<double>(rate.getNumerator());
    return static_cast<double>(s - (s / 60) * 60) + (x - static_cast<double>(s));
}

DtTimeIndex DtTimeIndex::convert(Rational fromRate, Rational toRate,
                                 std::float_round_style style) const {
    if (style == std::round_toward_zero) {
        const int numerator = IntWrap::mul(fromRate.getDenominator(), toRate.getNumerator());
        const int denominator = IntWrap::mul(toRate.getDenominator(), fromRate.getNumerator());
        // Truncating numerator * count / denominator gives the same result as
        // through the reduced factor whenever the product fits, so the
        // reduction is only needed where the product overflows (and wraps).
        int64_t product;
        if (denominator > 0 && !__builtin_mul_overflow(int64_t{numerator}, _count, &product)) {
            return product / denominator;
        }
        const Rational factor(numerator, denominator);
        return IntWrap::div(IntWrap::mul(int64_t{factor.getNumerator()}, _count),
                            factor.getDenominator());
    }
    const double x = static_cast<double>(fromRate.getDenominator()) * static_cast<double>(_count) /
                     static_cast<double>(fromRate.getNumerator()) *
                     static_cast<double>(toRate.getNumerator()) /
                     static_cast<double>(toRate.getDenominator());
    switch (style) {
        case std::round_to_nearest:
            return IntWrap::floorTo<int64_t>(x + 0.5);
        case std::round_toward_infinity:
            return IntWrap::ceilTo<int64_t>(x);
        case std::round_toward_neg_infinity:
            return IntWrap::floorTo<int64_t>(x);
        case std::round_indeterminate:
            return x >= 0.0 ? IntWrap::ceilTo<int64_t>(x) : IntWrap::floorTo<int64_t>(x);
        default:
            return 0;
    }
}

DtTimeIndex DtTimeIndex::convertExact(Rational fromRate, Rational toRate,
                                      DtRounding rounding) const {
    // Each term is a product of two 32-bit values, at most 2^62 in magnitude.
    int64_t numerator = int64_t{fromRate.getDenominator()} * toRate.getNumerator();
    int64_t denominator = int64_t{toRate.getDenominator()} * fromRate.getNumerator();
    if (denominator == 0) [[unlikely]]
        QN_THROW(DtEx::BadRate);
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    return DtExact::divide(DtInt128{_count} * numerator, denominator, rounding);
}

}  // namespace Qn
