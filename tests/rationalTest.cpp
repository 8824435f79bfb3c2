#include <base/rational.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <numeric>
#include <random>
#include <sstream>

namespace {

std::string dumped(const Qn::Rational& r) {
    std::ostringstream text;
    r.dump(text);
    return text.str();
}

}  // namespace

TEST(Rational, ConstructionNormalisesAndReduces) {
    struct Row {
        int n, d, wantN, wantD;
    };
    const Row rows[] = {
        {6, -4, -3, 2},
        {0, -7, 0, 1},
        {-8, -12, 2, 3},
        {30000, 1001, 30000, 1001},
        {48000, -2, -24000, 1},
        {INT_MIN, 2, INT_MIN / 2, 1},
        {24, INT_MIN, -3, 1 << 28},
        {INT_MAX, INT_MAX, 1, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.n << "/" << row.d);
        Qn::Rational r(row.n, row.d);
        EXPECT_EQ(r.getNumerator(), row.wantN);
        EXPECT_EQ(r.getDenominator(), row.wantD);
    }
    Qn::Rational unit;
    EXPECT_EQ(unit.getNumerator(), 1);
    EXPECT_EQ(unit.getDenominator(), 1);
}

TEST(Rational, ZeroDenominatorRaisesAndKeepsTheValue) {
    Qn::Rational r(2, 3);
    try {
        r.setValue(5, 0);
        FAIL() << "no exception";
    } catch (const Qn::RationalEx::ExDenominatorZero& e) {
        EXPECT_STREQ(e.getReason(), "Illegal zero denominator.");
        EXPECT_STREQ(e.what(), "Illegal zero denominator.");
        EXPECT_STREQ(e.getFileName(), "rational");
        EXPECT_EQ(e.getLineNo(), 63);
    }
    EXPECT_EQ(r, Qn::Rational(2, 3));
    EXPECT_THROW(Qn::Rational(0, 0), std::invalid_argument);
}

TEST(Rational, EqualityIsExactButOrderingTolerant) {
    const Qn::Rational third(1, 3), near(3333333, 10000000), film(24, 1), pal(25, 1);
    EXPECT_TRUE(third != near && !(third == near) && !(third < near) && !(near < third));
    EXPECT_TRUE(!(third > near) && third <= near && third >= near);
    EXPECT_TRUE(film < pal && film <= pal && !(film > pal) && !(film >= pal) && pal > film);
}

TEST(Rational, ValuesAndText) {
    EXPECT_EQ(Qn::Rational(1, 3).getFloat(), 1.0f / 3.0f);
    EXPECT_TRUE(std::isinf(Qn::Rational(0, 1).getReciprocalDouble()));
    EXPECT_EQ(dumped(Qn::Rational(24, 1)), "(24/1=24)");
    EXPECT_EQ(dumped(Qn::Rational(30000, 1001)), "(30000/1001=29.97)");
    EXPECT_EQ(dumped(Qn::Rational(-3, 2)), "(-3/2=-1.5)");
}

TEST(Rational, RandomValuesAreReducedWithPositiveDenominator) {
    std::mt19937_64 random(4);
    std::uniform_int_distribution<int> wide(INT_MIN, INT_MAX), narrow(-1000, 1000);
    for (int i = 0; i < 20000; ++i) {
        const int n = i % 2 ? wide(random) : narrow(random);
        const int d = i % 3 ? wide(random) : narrow(random);
        // The most negative denominator, or numerator over a negative
        // denominator, cannot be negated in 32 bits.
        if (d == 0 || d == INT_MIN || (n == INT_MIN && d < 0)) continue;
        SCOPED_TRACE(testing::Message() << n << "/" << d);
        const Qn::Rational r(n, d);
        ASSERT_GT(r.getDenominator(), 0);
        if (r.getNumerator() == 0) {
            ASSERT_EQ(r.getDenominator(), 1);
        } else {
            ASSERT_EQ(std::gcd(static_cast<long long>(r.getNumerator()), r.getDenominator()), 1);
        }
        // The same value: n * d' == n' * d.
        ASSERT_EQ(static_cast<long long>(n) * r.getDenominator(),
                  static_cast<long long>(r.getNumerator()) * d);
    }
}
