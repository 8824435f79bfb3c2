#include <base/rnNiederreiterMatrix.h>

#include <bit>

namespace Qn {

namespace {

using Poly = std::uint64_t;  // bit k is the coefficient of x^k

int degree(Poly p) { return std::bit_width(p) - 1; }

// Remainder of a divided by b over GF(2).
Poly remainder(Poly a, Poly b) {
    const int db = degree(b);
    for (int da = degree(a); da >= db; da = degree(a)) a ^= b << (da - db);
    return a;
}

bool isIrreducible(Poly p) {
    const int d = degree(p);
    for (Poly divisor = 2; degree(divisor) * 2 <= d; ++divisor)
        if (remainder(p, divisor) == 0) return false;
    return true;
}

// Product of a and b over GF(2), cut to its terms below y^Digits.
std::uint32_t multiplyTruncated(std::uint32_t a, std::uint32_t b) {
    std::uint32_t product = 0;
    for (; b != 0; b &= b - 1) product ^= a << std::countr_zero(b);
    return product;
}

// Power series 1/P(y) to Digits terms; P(0) = 1.
std::uint32_t inverseSeries(std::uint32_t p) {
    std::uint32_t inverse = 1;
    for (unsigned int m = 1; m < RnNiederreiterMatrix::Digits; ++m) {
        // Coefficient m of P * inverse must vanish: inverse_m = sum_{l>=1} p_l inverse_{m-l}.
        unsigned int bit = 0;
        for (unsigned int l = 1; l <= m; ++l) bit ^= ((p >> l) & (inverse >> (m - l))) & 1U;
        inverse |= bit << m;
    }
    return inverse;
}

}  // namespace

std::uint64_t RnNiederreiterMatrix::getPolynomial(unsigned int dimension) {
    for (Poly p = 2;; ++p) {
        if (isIrreducible(p) && dimension-- == 0) return p;
    }
}

void RnNiederreiterMatrix::getColumns(unsigned int dimension, std::uint32_t* columns) {
    const Poly p = getPolynomial(dimension);
    const int e = degree(p);
    // p reversed: y^e p(1/y), constant term 1.
    std::uint32_t reversed = 0;
    for (int k = 0; k <= e && k < int(Digits); ++k)
        reversed |= std::uint32_t((p >> (e - k)) & 1U) << k;

    for (unsigned int r = 0; r < Digits; ++r) columns[r] = 0;
    std::uint32_t power = 1;  // reversed^(q+1), updated when q changes
    std::uint32_t inverse = 1;
    for (unsigned int j = 1; j <= Digits; ++j) {
        if ((j - 1) % e == 0) {
            power = multiplyTruncated(power, reversed);
            inverse = inverseSeries(power);
        }
        for (unsigned int r = j - 1; r < Digits; ++r)
            if ((inverse >> (r + 1 - j)) & 1U) columns[r] |= 1U << (Digits - j);
    }
}

}  // namespace Qn
