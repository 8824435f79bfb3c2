#include <base/rnHaltonBiRng.h>
#include <base/rnHaltonMultiRng.h>
#include <base/rnHammersleyBiRng.h>
#include <base/rnHammersleyMultiRng.h>
#include <base/rnNiederreiterMultiRng.h>
#include <base/rnVanDerCorputRng.h>

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <base/exInternalError.h>
#include <base/rnNumRecUniformRng.h>
#include <base/rnSeparableBiRng.h>
#include <support/rnTestSupport.h>

namespace {

template <class T>
class RnLowDiscrepancyTest : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(RnLowDiscrepancyTest, Precisions);

template <class T>
double discrepancyOf(Qn::RnBiRng<T>& rng, unsigned int count) {
    std::vector<T> x(count), y(count);
    rng.getSequence(count, x.data(), y.data());
    return RnTest::starDiscrepancy(std::vector<double>(x.begin(), x.end()),
                                   std::vector<double>(y.begin(), y.end()));
}

std::string assertionText(const std::function<void()>& action) {
    try {
        action();
    } catch (const Qn::ExInternalError& e) {
        return e.getReason();
    }
    return "<nothing raised>";
}

}  // namespace

TYPED_TEST(RnLowDiscrepancyTest, VanDerCorputRadicalInverseAndWrap) {
    using T = TypeParam;
    Qn::RnVanDerCorputRng<T> base2, base3(3);
    for (T expected : {T(0.5), T(0.25), T(0.75), T(0.125), T(0.625)}) EXPECT_EQ(base2(), expected);
    for (T expected : {T(1) / 3, T(2) / 3, T(1) / 9, T(4) / 9})
        EXPECT_NEAR(base3(), expected, 1e-6);
    EXPECT_STREQ(base2.getName(), "Van der Corput");
    base2.restart();
    EXPECT_EQ(base2(), T(0.5));

    // After 2^32 - 1 draws the counter wraps: 0, then the sequence again.
    base2.restart(0xFFFFFFFEu);
    EXPECT_NEAR(base2(), 1.0, 1e-6);
    EXPECT_EQ(base2(), T(0));
    EXPECT_EQ(base2(), T(0.5));

    // Base 2 gives what summing the digits in T gives, also where float rounds.
    for (std::uint32_t index : {1u, 0xFFFFFFu, 0x1000001u, 0x12345679u, 0xFFFFFFFFu}) {
        T sum = 0, factor = T(0.5);
        for (std::uint32_t n = index; n != 0; n /= 2, factor *= T(0.5))
            if (n % 2) sum += factor;
        EXPECT_EQ(base2.radicalInverse(index), sum) << index;
    }

    EXPECT_EQ(assertionText([] { Qn::RnVanDerCorputRng<T> bad(1); }),
              "Assertion 'base >= 2' failed.");
    EXPECT_EQ(assertionText([] { Qn::RnVanDerCorputRng<T>(2).setBase(0); }),
              "Assertion 'base >= 2' failed.");
}

TYPED_TEST(RnLowDiscrepancyTest, HaltonPointsRestartsAndBases) {
    using T = TypeParam;
    Qn::RnHaltonMultiRng<T, 3> halton;
    T point[3];
    halton.getSample(point);
    EXPECT_EQ(point[0], T(0.5));
    EXPECT_NEAR(point[1], 1.0 / 3, 1e-7);
    EXPECT_NEAR(point[2], 0.2, 1e-7);
    halton.getSample(point);
    EXPECT_EQ(point[0], T(0.25));
    EXPECT_NEAR(point[1], 2.0 / 3, 1e-7);
    EXPECT_NEAR(point[2], 0.4, 1e-7);
    std::uint32_t bases[3];
    halton.getPrimeNumbers(bases);
    EXPECT_EQ(std::vector<std::uint32_t>(bases, bases + 3), (std::vector<std::uint32_t>{2, 3, 5}));
    EXPECT_STREQ(halton.getName(), "Halton");

    // Bases change without moving the indices.
    const std::uint32_t other[3] = {5, 7, 2};
    halton.setPrimeNumbers(other);
    halton.getSample(point);
    EXPECT_NEAR(point[0], 3.0 / 5, 1e-7);
    EXPECT_NEAR(point[1], 3.0 / 7, 1e-7);
    EXPECT_EQ(point[2], T(0.75));

    Qn::RnHaltonBiRng<T> bi;
    bi.restart(3);
    T x, y;
    bi.getSample(x, y);
    EXPECT_EQ(x, T(0.125));
    EXPECT_NEAR(y, 4.0 / 9, 1e-7);
    bi.restart();
    Qn::RnHaltonBiRng<T> same(2, 3);
    std::vector<T> xs(40), ys(40);
    same.getSequence(40, xs.data(), ys.data());
    for (int i = 0; i < 40; ++i) {
        bi.getSample(x, y);
        ASSERT_EQ(x, xs[i]);
        ASSERT_EQ(y, ys[i]);
    }
    EXPECT_EQ(bi.getPdf(T(0.5), T(0.99)), T(1));
    EXPECT_EQ(bi.getPdf(T(0.5), T(1)), T(0));
}

TYPED_TEST(RnLowDiscrepancyTest, HammersleySetAndItsLength) {
    using T = TypeParam;
    Qn::RnHammersleyMultiRng<T, 3> set(8);
    T point[3];
    std::vector<T> column0, column1;
    for (int i = 0; i < 8; ++i) {
        set.getSample(point);
        column0.push_back(point[0]);
        column1.push_back(point[1]);
    }
    EXPECT_EQ(column0, (std::vector<T>{0, 0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875}));
    EXPECT_EQ(column1, (std::vector<T>{0, 0.5, 0.25, 0.75, 0.125, 0.625, 0.375, 0.875}));
    EXPECT_NEAR(point[2], 5.0 / 9, 1e-6);  // 7 is 21 in base 3
    EXPECT_EQ(assertionText([&] { set.getSample(point); }), "Assertion 'n <= _length' failed.");
    set.restart();
    EXPECT_NO_THROW(set.getSample(point));
    EXPECT_STREQ(set.getName(), "Hammersley");

    Qn::RnHammersleyBiRng<T> bi(4);
    std::vector<T> x(5), y(5);
    EXPECT_EQ(assertionText([&] { bi.getSequence(5, x.data(), y.data()); }),
              "Assertion 'n <= _length' failed.");
    bi.getSequence(4, x.data(), y.data());
    EXPECT_EQ(x[3], T(0.75));
    EXPECT_EQ(y[3], T(0.75));
    EXPECT_EQ(assertionText([] { Qn::RnHammersleyBiRng<T> empty(0); }),
              "Assertion 'length >= 1' failed.");
}

TYPED_TEST(RnLowDiscrepancyTest, DiscrepancyBelowUniformPoints) {
    using T = TypeParam;
    Qn::RnNumRecUniformRng<T> uniform(11);
    Qn::RnSeparableBiRng<T> random(&uniform);
    Qn::RnHaltonBiRng<T> halton;
    Qn::RnHammersleyBiRng<T> hammersley(1024);
    const double randomD = discrepancyOf(random, 1024);
    const double haltonD = discrepancyOf(halton, 1024);
    const double hammersleyD = discrepancyOf(hammersley, 1024);
    EXPECT_GT(randomD, 0.015);
    EXPECT_LT(haltonD, 0.01);
    EXPECT_LT(hammersleyD, 0.006);
    EXPECT_LT(haltonD, randomD / 2);
    EXPECT_LT(hammersleyD, randomD / 2);
}

TEST(RnNiederreiterMatrix, PolynomialsAndTriangularMatrices) {
    const std::vector<std::uint64_t> expected = {0b10,    0b11,    0b111,   0b1011,  0b1101,
                                                 0b10011, 0b11001, 0b11111, 0b100101};
    for (unsigned int d = 0; d < expected.size(); ++d)
        EXPECT_EQ(Qn::RnNiederreiterMatrix::getPolynomial(d), expected[d]) << "dimension " << d;
    std::uint32_t columns[32];
    Qn::RnNiederreiterMatrix::getColumns(0, columns);
    for (int r = 0; r < 32; ++r) EXPECT_EQ(columns[r], 1u << (31 - r));
    // x + 1 gives the binomial coefficients mod 2.
    Qn::RnNiederreiterMatrix::getColumns(1, columns);
    EXPECT_EQ(columns[0], 0x80000000u);
    EXPECT_EQ(columns[1], 0xC0000000u);
    EXPECT_EQ(columns[2], 0xA0000000u);
    EXPECT_EQ(columns[3], 0xF0000000u);
    for (unsigned int d = 0; d < 12; ++d) {
        Qn::RnNiederreiterMatrix::getColumns(d, columns);
        for (int r = 0; r < 32; ++r) {
            ASSERT_NE(columns[r] & (1u << (31 - r)), 0u) << d;
            ASSERT_EQ(columns[r] & ((1u << (31 - r)) - 1), 0u) << d;
        }
    }
}

// Every pair of the first 12 dimensions: the first 2^10 points are a (t, 10, 2)-net,
// t = e_i + e_j - 2, so every elementary box of volume 2^(t-10) holds 2^t points.
TEST(RnNiederreiterMultiRng, PairsOfTwelveDimensionsAreNets) {
    constexpr int N = 12, m = 10, count = 1 << m;
    Qn::RnNiederreiterMultiRng<double, N> rng;
    EXPECT_STREQ(rng.getName(), "Niederreiter");
    rng.restart(std::uint32_t(-1));  // the wrap makes the first point the origin
    std::vector<std::vector<double>> coords(N, std::vector<double>(count));
    double* out[N];
    for (int k = 0; k < N; ++k) out[k] = coords[k].data();
    rng.getSequence(count, out);
    EXPECT_EQ(coords[0][0], 0.0);
    int degrees[N];
    for (int k = 0; k < N; ++k)
        degrees[k] = std::bit_width(Qn::RnNiederreiterMatrix::getPolynomial(k)) - 1;
    for (int i = 0; i < N; ++i)
        for (int j = i + 1; j < N; ++j) {
            const int t = degrees[i] + degrees[j] - 2;
            for (int a = 0; a <= m - t; ++a) {
                const int b = m - t - a;
                std::vector<int> boxes(std::size_t(1) << (m - t), 0);
                for (int p = 0; p < count; ++p)
                    ++boxes[(int(coords[i][p] * (1 << a)) << b) | int(coords[j][p] * (1 << b))];
                for (int c : boxes) ASSERT_EQ(c, 1 << t) << "dimensions " << i << ", " << j;
            }
        }
}

TYPED_TEST(RnLowDiscrepancyTest, NiederreiterRestartMatchesDrawing) {
    using T = TypeParam;
    Qn::RnNiederreiterMultiRng<T, 3> a, b;
    T p[3], q[3];
    for (int i = 0; i < 37; ++i) a.getSample(p);
    b.restart(37);
    for (int i = 0; i < 20; ++i) {
        a.getSample(p);
        b.getSample(q);
        for (int k = 0; k < 3; ++k) ASSERT_EQ(p[k], q[k]);
    }
    // The largest fractions stay below 1 in both precisions.
    b.restart(0xFFFFFFF0u);
    for (int i = 0; i < 15; ++i) {
        b.getSample(q);
        for (T v : q) ASSERT_LT(v, T(1));
    }
    b.getSample(q);
    EXPECT_EQ(q[0] + q[1] + q[2], T(0));
}
