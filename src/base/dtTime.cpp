#include <base/dtTime.h>

#include <ostream>

#include <base/dtEx.h>

namespace Qn {

namespace {
// The shared rate never counts faster than this many ticks per second, nor
// slower than one tick per this many seconds.
constexpr int SharedRateLimit = 1000000;
}  // namespace

void DtTime::throwBadRate(int line) { throw DtEx::BadRate("dtTime", line); }

DtTime DtTime::convertRate(Rational newRate) const {
    if (newRate == _rate) return *this;
    return DtTime(_count.convert(_rate, newRate, std::round_toward_zero), newRate);
}

Rational DtTime::getSharedRate(Rational a, Rational b) {
    const Rational product(IntWrap::mul(a.getNumerator(), b.getNumerator()),
                           IntWrap::mul(a.getDenominator(), b.getDenominator()));
    const int sign = product.getNumerator() < 0 ? -1 : 1;
    if (product.getNumerator() > SharedRateLimit || product.getNumerator() < -SharedRateLimit) {
        return Rational(sign * SharedRateLimit, 1);
    }
    if (product.getDenominator() > SharedRateLimit) return Rational(sign, SharedRateLimit);
    return product;
}

DtTime DtTime::combinedAtSharedRate(DtTime a, DtTime b, Op op) {
    const Rational shared = getSharedRate(a._rate, b._rate);
    return DtTime(apply(a.convertRate(shared)._count, b.convertRate(shared)._count, op), shared);
}

std::ostream& DtTime::dump(std::ostream& stream, DtTimeIndex count, Rational rate) {
    stream << "(" << int64_t{count} << " @ ";
    rate.dump(stream);
    return stream << ")";
}

}  // namespace Qn
