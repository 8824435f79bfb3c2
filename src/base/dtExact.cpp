#include <base/dtExact.h>

#include <base/assertions.h>
#include <base/dtEx.h>

namespace Qn {

void DtExact::throwOverflow() { QN_THROW(DtEx::ExOverflow); }

void DtExact::throwBadRounding() {
    Assertions::throwAssertionFailed(__FILE__, __LINE__, "rounding is a DtRounding");
}

namespace {

// numerator = f x denominator + r with 0 <= r < denominator. REQUIRES: denominator > 0.
void floorDivide(DtInt128 numerator, DtInt128 denominator, DtInt128& f, DtInt128& r) {
    f = numerator / denominator;
    r = numerator % denominator;
    if (r < 0) {
        f -= 1;
        r += denominator;
    }
}

}  // namespace

int64_t DtExact::checked(DtInt128 value) {
    if (value < Min64 || value > Max64) throwOverflow();
    return static_cast<int64_t>(value);
}

int64_t DtExact::divide128(DtInt128 numerator, DtInt128 denominator, DtRounding rounding) {
    DtInt128 f, r;
    floorDivide(numerator, denominator, f, r);
    return checked(round(f, r, denominator, rounding));
}

int64_t DtExact::mulDivide(DtInt128 numerator, int64_t factor, DtInt128 denominator,
                           DtRounding rounding) {
    if (factor < 0) {
        numerator = -numerator;
        factor = -factor;
    }
    // numerator = q x denominator + r, so the result is q x factor plus
    // r x factor / denominator, whose terms fit in 128 bits (r x factor < 2^126).
    DtInt128 q, r;
    floorDivide(numerator, denominator, q, r);
    if (factor == 0) return 0;
    if (q < Min64 || q > Max64) throwOverflow();
    DtInt128 f, rest;
    floorDivide(r * factor, denominator, f, rest);
    return checked(round(q * factor + f, rest, denominator, rounding));
}

}  // namespace Qn
