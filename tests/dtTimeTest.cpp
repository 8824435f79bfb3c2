#include <base/dtTime.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <sstream>

#include <base/dtEx.h>

namespace {

using Qn::DtTime;
using Qn::DtTimeIndex;
using Qn::Rational;
__extension__ typedef __int128 Int128;

std::string text(const DtTime& t) {
    std::ostringstream stream;
    stream << t;
    return stream.str();
}

void expectTime(const DtTime& t, int64_t count, int numerator, int denominator) {
    EXPECT_EQ(int64_t{t.getCount()}, count);
    EXPECT_EQ(t.getRate(), Rational(numerator, denominator));
}

}  // namespace

TEST(DtTimeIndex, ConvertRoundsInEveryStyle) {
    const std::float_round_style styles[] = {
        std::round_toward_zero, std::round_to_nearest, std::round_toward_infinity,
        std::round_toward_neg_infinity, std::round_indeterminate};
    struct Row {
        int64_t count;
        int64_t want[5];
    };
    const Row rows[] = {{7, {3, 4, 4, 3, 4}}, {-7, {-3, -3, -3, -4, -4}}, {8, {4, 4, 4, 4, 4}}};
    for (const Row& row : rows) {
        for (int i = 0; i < 5; ++i) {
            SCOPED_TRACE(testing::Message() << row.count << " style " << styles[i]);
            EXPECT_EQ(
                int64_t{DtTimeIndex(row.count).convert(Rational(2, 1), Rational(1, 1), styles[i])},
                row.want[i]);
        }
    }
    // Unknown styles give 0.
    EXPECT_EQ(int64_t{DtTimeIndex(7).convert(Rational(2, 1), Rational(1, 1),
                                             static_cast<std::float_round_style>(-3))},
              0);
    // 24 fps to NTSC: exact on the integer path.
    EXPECT_EQ(int64_t{DtTimeIndex(240).convert(Rational(24, 1), Rational(30000, 1001),
                                               std::round_toward_zero)},
              299);
    // The floating-point styles go through double: 25 ticks at 3/1 are 125 at
    // 15/1 exactly, but the double quotient lies just above 125.
    EXPECT_EQ(
        int64_t{DtTimeIndex(25).convert(Rational(3, 1), Rational(15, 1), std::round_toward_zero)},
        125);
    EXPECT_EQ(int64_t{DtTimeIndex(25).convert(Rational(3, 1), Rational(15, 1),
                                              std::round_toward_infinity)},
              126);
    // Out of the 64-bit range: the conversion failure value.
    EXPECT_EQ(int64_t{DtTimeIndex(INT64_MAX).convert(Rational(1, 1), Rational(4, 1),
                                                     std::round_toward_infinity)},
              INT64_MIN);
    EXPECT_EQ(int64_t{DtTimeIndex(-INT64_MAX)
                          .convert(Rational(1, 1), Rational(4, 1), std::round_toward_neg_infinity)},
              INT64_MIN);
    EXPECT_THROW(DtTimeIndex(1).convert(Rational(0, 1), Rational(1, 1), std::round_toward_zero),
                 Qn::RationalEx::ExDenominatorZero);
}

TEST(DtTimeIndex, ConvertTowardZeroIsExactTruncation) {
    std::mt19937_64 random(5);
    std::uniform_int_distribution<int> terms(1, 40000);  // products fit 32 bits
    std::uniform_int_distribution<int64_t> counts(INT64_MIN, INT64_MAX);
    for (int i = 0; i < 20000; ++i) {
        const Rational from(terms(random) * (i % 3 == 0 ? -1 : 1), terms(random));
        const Rational to(terms(random), terms(random));
        const int64_t count = counts(random) >> (i % 64);
        // The reduced factor n/d; the result is trunc(n * count / d).
        const Rational factor(from.getDenominator() * to.getNumerator(),
                              to.getDenominator() * from.getNumerator());
        const Int128 product = static_cast<Int128>(factor.getNumerator()) * count;
        if (product > INT64_MAX || product < INT64_MIN) continue;
        SCOPED_TRACE(testing::Message()
                     << count << " from " << from.getNumerator() << "/" << from.getDenominator());
        ASSERT_EQ(int64_t{DtTimeIndex(count).convert(from, to, std::round_toward_zero)},
                  static_cast<int64_t>(product / factor.getDenominator()));
    }
    // The product through the unreduced factor 6/3 would overflow; through 2/1 it fits.
    EXPECT_EQ(int64_t{DtTimeIndex(2000000000000000000)
                          .convert(Rational(3, 1), Rational(6, 1), std::round_toward_zero)},
              4000000000000000000);
}

TEST(DtTimeIndex, ClockBreakdown) {
    const Rational film(24, 1);
    const DtTimeIndex later = 90061 * 24 + 12;
    EXPECT_EQ(later.getHours(film), 25);
    EXPECT_EQ(later.getMinutes(film), 1);
    EXPECT_DOUBLE_EQ(later.getSeconds(film), 1.5);
    const DtTimeIndex earlier = -(90061 * 24 + 12);
    EXPECT_EQ(earlier.getHours(film), -25);
    EXPECT_EQ(earlier.getMinutes(film), -1);
    EXPECT_DOUBLE_EQ(earlier.getSeconds(film), -1.5);
    const Rational slow(1, 1200);  // a tick every 20 minutes
    EXPECT_EQ(DtTimeIndex(3).getHours(slow), 1);
    EXPECT_EQ(DtTimeIndex(3).getMinutes(slow), 0);
    EXPECT_DOUBLE_EQ(DtTimeIndex(3).getSeconds(slow), 0.0);
    EXPECT_EQ(DtTimeIndex(4).getMinutes(slow), 20);
    EXPECT_THROW(DtTimeIndex(3).getHours(Rational(0, 1)), Qn::DtEx::BadRate);
}

TEST(DtTimeIndex, ArithmeticTruncatesAndWraps) {
    DtTimeIndex i = 7;
    EXPECT_EQ(int64_t{i / 2}, 3);
    EXPECT_EQ(int64_t{-7 / DtTimeIndex(2)}, -3);
    EXPECT_EQ(int64_t{DtTimeIndex(-7) % 2}, -1);
    EXPECT_EQ(int64_t{i * DtTimeIndex(3) - 1}, 20);
    EXPECT_EQ(int64_t{i++}, 7);
    EXPECT_EQ(int64_t{i}, 8);
    EXPECT_EQ(int64_t{--i}, 7);
    i += 3;
    i %= 4;
    EXPECT_EQ(int64_t{i}, 2);
    EXPECT_EQ(i.getDouble(), 2.0);
    EXPECT_EQ(i.getFloat(), 2.0f);

    const int64_t max = std::numeric_limits<int64_t>::max(),
                  min = std::numeric_limits<int64_t>::min();
    EXPECT_EQ(int64_t{DtTimeIndex(max) + 1}, min);
    EXPECT_EQ(int64_t{DtTimeIndex(min) - 1}, max);
    EXPECT_EQ(int64_t{DtTimeIndex(min) / -1}, min);
    EXPECT_EQ(int64_t{DtTimeIndex(min) % -1}, 0);
    EXPECT_EQ(int64_t{DtTimeIndex(max) * 2}, -2);
}

TEST(DtTime, ConstructionChecksTheRate) {
    expectTime(DtTime(), 0, 1, 1);
    expectTime(DtTime(5, 48000, -2), 5, -24000, 1);
    struct Case {
        const char* what;
        int line;
        DtTime (*make)();
    };
    const Case cases[] = {
        {"rational", 95, [] { return DtTime(5, Rational(0, 1)); }},
        {"integers", 110, [] { return DtTime(5, 0, 1); }},
        {"convertRate", 95, [] { return DtTime(5, 24, 1).convertRate(Rational(0, 1)); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        try {
            c.make();
            ADD_FAILURE() << "no exception";
        } catch (const Qn::DtEx::BadRate& e) {
            EXPECT_STREQ(e.what(), "Null rate not allowed in DtTime.");
            EXPECT_STREQ(e.getFileName(), "dtTime");
            EXPECT_EQ(e.getLineNo(), c.line);
        }
    }
    EXPECT_THROW(DtTime(5, 0, 0), Qn::RationalEx::ExDenominatorZero);
    EXPECT_THROW(DtTime(5, 5, 0), Qn::RationalEx::ExDenominatorZero);
}

TEST(DtTime, EqualRatesCombineCounts) {
    const DtTime a(5, 1, 1), b(3, 1, 1);
    expectTime(a + b, 8, 1, 1);
    expectTime(a - b, 2, 1, 1);
    expectTime(a * b, 15, 1, 1);
    expectTime(a / b, 1, 1, 1);
    expectTime(a % b, 2, 1, 1);
    DtTime c = a;
    c += b;
    c *= DtTimeIndex(2);
    expectTime(c, 16, 1, 1);
    expectTime(DtTime(7, 24, 1) + 3, 10, 24, 1);
    expectTime(DtTime(7, 24, 1) % 4, 3, 24, 1);
    DtTime d(7, 24, 1);
    expectTime(d++, 7, 24, 1);
    expectTime(--d, 7, 24, 1);
}

TEST(DtTime, MixedRatesCombineAtTheSharedRate) {
    const DtTime film(10, 24, 1), pal(10, 25, 1);
    expectTime(film + pal, 490, 600, 1);
    expectTime(film - pal, 10, 600, 1);
    expectTime(film * pal, 60000, 600, 1);  // counts at the shared rate, no unit correction
    expectTime(film / pal, 1, 600, 1);
    expectTime(film % pal, 10, 600, 1);
    DtTime sum = film;
    sum += pal;
    expectTime(sum, 490, 600, 1);
    // 24 fps and NTSC share 720000/1001; the 24 fps tick truncates to 29 there.
    expectTime(DtTime(1, 30000, 1001) + DtTime(1, 24, 1), 24 + 29, 720000, 1001);

    struct Row {
        Rational a, b, shared;
    };
    const Row rows[] = {
        {Rational(1000003, 1), Rational(7, 1), Rational(1000000, 1)},
        {Rational(1, 1000003), Rational(1, 7), Rational(1, 1000000)},
        {Rational(-1000003, 1), Rational(7, 1), Rational(-1000000, 1)},
        {Rational(-1, 1000003), Rational(1, 7), Rational(-1, 1000000)},
        {Rational(1000, 1), Rational(999, 1), Rational(999000, 1)},
        {Rational(2, 3), Rational(3, 4), Rational(1, 2)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.a.getNumerator() << "/" << row.a.getDenominator());
        EXPECT_EQ(DtTime::getSharedRate(row.a, row.b), row.shared);
        EXPECT_EQ((DtTime(1, row.a) + DtTime(1, row.b)).getRate(), row.shared);
    }
}

TEST(DtTime, ComparisonsAreExactCrossProducts) {
    const DtTime one(1, 24, 1);
    EXPECT_TRUE(one == DtTime(25, 600, 1));
    EXPECT_TRUE(one > DtTime(24, 600, 1));
    EXPECT_TRUE(one >= DtTime(24, 600, 1));
    EXPECT_TRUE(one != DtTime(24, 600, 1));
    EXPECT_TRUE(DtTime(24, 600, 1) < one);
    EXPECT_TRUE(DtTime(24, 600, 1) <= one);
    EXPECT_FALSE(one < DtTime(25, 600, 1));
    EXPECT_EQ(int64_t{crossMultLhs(one, DtTime(25, 600, 1))}, 600);
    EXPECT_EQ(int64_t{crossMultRhs(one, DtTime(25, 600, 1))}, 600);
    EXPECT_TRUE(DtTime(30000, 30000, 1001) == DtTime(1001, 1, 1));
}

TEST(DtTime, ComparisonAgreesWithExactArithmetic) {
    std::mt19937_64 random(42);
    std::uniform_int_distribution<int> rates(1, 1 << 30);
    std::uniform_int_distribution<int> smallRates(1, 1000);
    std::uniform_int_distribution<int64_t> counts(-(int64_t{1} << 40), int64_t{1} << 40);
    const Int128 limit = static_cast<Int128>(std::numeric_limits<int64_t>::max());
    int compared = 0;
    for (int i = 0; i < 20000; ++i) {
        const bool small = i % 2 == 0;
        const Rational ra = small ? Rational(smallRates(random), smallRates(random))
                                  : Rational(rates(random), rates(random));
        const Rational rb = i % 4 == 0 ? ra : Rational(smallRates(random), smallRates(random));
        const int64_t ca = counts(random) >> (i % 40);
        const int64_t cb = i % 8 == 0 ? ca : counts(random) >> (i % 30);
        const DtTime a(ca, ra), b(cb, rb);
        // a - b in seconds has the sign of ca*da*nb - cb*db*na (rates positive).
        const Int128 lhs = static_cast<Int128>(ca) * ra.getDenominator() * rb.getNumerator();
        const Int128 rhs = static_cast<Int128>(cb) * rb.getDenominator() * ra.getNumerator();
        if (lhs > limit || lhs < -limit || rhs > limit || rhs < -limit) continue;
        ++compared;
        SCOPED_TRACE(text(a) + " vs " + text(b));
        ASSERT_EQ(a < b, lhs < rhs);
        ASSERT_EQ(a <= b, lhs <= rhs);
        ASSERT_EQ(a == b, lhs == rhs);
        ASSERT_EQ(a != b, lhs != rhs);
        ASSERT_EQ(a >= b, lhs >= rhs);
        ASSERT_EQ(a > b, lhs > rhs);
    }
    EXPECT_GT(compared, 10000);
}

TEST(DtTime, IntegerRatesAddExactly) {
    std::mt19937_64 random(7);
    std::uniform_int_distribution<int> rates(1, 1000);
    std::uniform_int_distribution<int64_t> counts(-1000000000, 1000000000);
    for (int i = 0; i < 5000; ++i) {
        const int na = rates(random), nb = rates(random);
        const DtTime a(counts(random), na, 1), b(counts(random), nb, 1);
        const DtTime sum = a + b;
        SCOPED_TRACE(text(a) + " + " + text(b) + " = " + text(sum));
        // sum.count / r == a.count / na + b.count / nb, with r = sum's rate.
        const Rational r = sum.getRate();
        ASSERT_EQ(r.getDenominator(), 1);
        ASSERT_EQ(static_cast<Int128>(int64_t{sum.getCount()}) * na * nb,
                  (static_cast<Int128>(int64_t{a.getCount()}) * nb +
                   static_cast<Int128>(int64_t{b.getCount()}) * na) *
                      r.getNumerator());
    }
}

TEST(DtTime, TextForm) {
    EXPECT_EQ(text(DtTime(100, 24, 1)), "(100 @ (24/1=24))");
    EXPECT_EQ(text(DtTime(-3, 30000, 1001)), "(-3 @ (30000/1001=29.97))");
    std::ostringstream stream;
    DtTime(1, 2, 1).dump(stream) << "!";
    EXPECT_EQ(stream.str(), "(1 @ (2/1=2))!");
}

TEST(DtEx, StringErrorTexts) {
    using E = Qn::DtEx::DtStringError;
    EXPECT_STREQ(E::toString(static_cast<E::ErrorCode>(7)), "Unknown error.");
    const E e("dtTimeUtil", 106, E::NumeratorOverflow);
    EXPECT_STREQ(e.what(), "DtString conversion error: Rate numerator overflow.");
    EXPECT_EQ(e.getErrorCode(), E::NumeratorOverflow);
    const std::unique_ptr<Qn::ExBase> copy(e.clone());
    EXPECT_EQ(dynamic_cast<E&>(*copy).getErrorCode(), E::NumeratorOverflow);
    EXPECT_STREQ(copy->getFileName(), "dtTimeUtil");
    EXPECT_STREQ(Qn::DtEx::BadRefRate("f", 1).what(), "Mismatched reference clock rates.");
}
