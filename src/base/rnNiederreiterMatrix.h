// Qn::RnNiederreiterMatrix: the generator matrices of the base-2 Niederreiter
// sequence, one per dimension.
//
// Construction. Dimension d takes the d-th irreducible polynomial p over GF(2)
// in order of degree, then of value (x, x+1, x^2+x+1, x^3+x+1, x^3+x^2+1, ...),
// of degree e. Row j >= 1 of its matrix, with j - 1 = q*e + u (0 <= u < e), is
// given by the Laurent expansion
//     x^(e-u-1) / p(x)^(q+1) = sum over r >= 0 of c(j, r) x^(-r-1),
// and the coordinate of point n = sum a_r 2^r is sum over j of
// (sum over r of c(j, r) a_r mod 2) 2^-j. With y = 1/x the expansion is
// y^j / P(y), P(y) = y^(e(q+1)) p(1/y)^(q+1), so c(j, r) is the coefficient of
// y^(r+1-j) of the power series 1/P(y): every matrix is upper triangular with a
// unit diagonal, and dimension 0 (p = x) is the Van der Corput sequence. A
// dimension set whose polynomials have degrees e_1 .. e_s forms a (t, s)-
// sequence with t = sum (e_i - 1).
//
// Matrices are returned by columns: column r, bit 32 - j set when c(j, r) = 1,
// so that XOR of the columns of the set bits of n gives the 32-bit fraction of
// point n.
#pragma once

#include <cstdint>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API RnNiederreiterMatrix {
  public:
    static constexpr unsigned int Digits = 32;

    // The irreducible polynomial of dimension (bit k = coefficient of x^k).
    static std::uint64_t getPolynomial(unsigned int dimension);
    // The Digits columns of the generator matrix of dimension.
    static void getColumns(unsigned int dimension, std::uint32_t* columns);
};

}  // namespace Qn
