#include <base/rational.h>

#include <cstdint>
#include <numeric>
#include <ostream>

#include <base/intWrap.h>

namespace Qn {

void Rational::setValue(int numerator, int denominator) {
    if (denominator == 0) throw RationalEx::ExDenominatorZero("rational", 63);
    if (denominator < 0) {
        numerator = IntWrap::neg(numerator);
        denominator = IntWrap::neg(denominator);
    }
    _numerator = numerator;
    _denominator = numerator == 0 ? 1 : denominator;
    lowestTerms();
}

void Rational::lowestTerms() {
    // Unsigned magnitudes, so that the most negative integer reduces without
    // overflow: as a denominator it stands for 2^31 (a negation that wrapped).
    const bool negative = _numerator < 0;
    const uint32_t a =
        negative ? 0U - static_cast<uint32_t>(_numerator) : static_cast<uint32_t>(_numerator);
    const uint32_t b = static_cast<uint32_t>(_denominator);
    if (a == 0) return;
    const uint32_t g = std::gcd(a, b);
    _numerator = static_cast<int32_t>(negative ? 0U - a / g : a / g);
    _denominator = static_cast<int32_t>(b / g);
}

void Rational::dump(std::ostream& stream) const {
    stream << "(" << _numerator << "/" << _denominator << "=" << getDouble() << ")";
}

}  // namespace Qn
