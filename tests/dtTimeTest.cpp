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
        Rational from, to;
        int64_t want[5];
    };
    const int64_t min = INT64_MIN;
    const Row rows[] = {
        {7, Rational(2, 1), Rational(1, 1), {3, 4, 4, 3, 4}},
        {-7, Rational(2, 1), Rational(1, 1), {-3, -3, -3, -4, -4}},
        {240, Rational(24, 1), Rational(30000, 1001), {299, 300, 300, 299, 300}},
        // Exactly 125, but the double quotient lies just above it.
        {25, Rational(3, 1), Rational(15, 1), {125, 125, 126, 125, 126}},
        // Out of the 64-bit range: the conversion failure value.
        {INT64_MAX, Rational(1, 1), Rational(4, 1), {-4, min, min, min, min}},
    };
    for (const Row& row : rows) {
        for (int i = 0; i < 5; ++i) {
            SCOPED_TRACE(testing::Message() << row.count << " style " << styles[i]);
            EXPECT_EQ(int64_t{DtTimeIndex(row.count).convert(row.from, row.to, styles[i])},
                      row.want[i]);
        }
    }
    EXPECT_EQ(int64_t{DtTimeIndex(7).convert(Rational(2, 1), Rational(1, 1),
                                             static_cast<std::float_round_style>(-3))},
              0);
    // Toward zero multiplies by the reduced factor 2/1, not 6/3, which would overflow.
    EXPECT_EQ(int64_t{DtTimeIndex(2000000000000000000)
                          .convert(Rational(3, 1), Rational(6, 1), std::round_toward_zero)},
              4000000000000000000);
    EXPECT_THROW(DtTimeIndex(1).convert(Rational(0, 1), Rational(1, 1), std::round_toward_zero),
                 Qn::RationalEx::ExDenominatorZero);
}

TEST(DtTimeIndex, ClockBreakdown) {
    struct Row {
        int64_t count;
        Rational rate;
        int64_t hours, minutes;
        double seconds;
    };
    const Row rows[] = {
        {90061 * 24 + 12, Rational(24, 1), 25, 1, 1.5},
        {-(90061 * 24 + 12), Rational(24, 1), -25, -1, -1.5},
        {3, Rational(1, 1200), 1, 0, 0.0},  // a tick every 20 minutes
        {4, Rational(1, 1200), 1, 20, 0.0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.count);
        EXPECT_EQ(DtTimeIndex(row.count).getHours(row.rate), row.hours);
        EXPECT_EQ(DtTimeIndex(row.count).getMinutes(row.rate), row.minutes);
        EXPECT_DOUBLE_EQ(DtTimeIndex(row.count).getSeconds(row.rate), row.seconds);
    }
    EXPECT_THROW(DtTimeIndex(3).getHours(Rational(0, 1)), Qn::DtEx::BadRate);
}

TEST(DtTimeIndex, ArithmeticTruncatesAndWraps) {
    DtTimeIndex i = 7;
    EXPECT_EQ(int64_t{-7 / DtTimeIndex(2)}, -3);
    EXPECT_EQ(int64_t{DtTimeIndex(-7) % 2}, -1);
    EXPECT_EQ(int64_t{i * DtTimeIndex(3) - 1}, 20);
    EXPECT_EQ(int64_t{i++}, 7);
    EXPECT_EQ(int64_t{--i}, 7);
    i += 3;
    i %= 4;
    EXPECT_EQ(int64_t{i}, 2);
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
    auto raised = [](DtTime (*make)()) -> std::string {
        try {
            make();
        } catch (const Qn::DtEx::BadRate& e) {
            return std::string(e.what()) + " " + e.getFileName() + ":" +
                   std::to_string(e.getLineNo());
        }
        return "nothing";
    };
    const std::string bad = "Null rate not allowed in DtTime. dtTime:";
    EXPECT_EQ(raised([] { return DtTime(5, Rational(0, 1)); }), bad + "95");
    EXPECT_EQ(raised([] { return DtTime(5, 0, 1); }), bad + "110");
    EXPECT_EQ(raised([] { return DtTime(5, 24, 1).convertRate(Rational(0, 1)); }), bad + "95");
    EXPECT_THROW(DtTime(5, 0, 0), Qn::RationalEx::ExDenominatorZero);
}

// Equal rates act on the counts; other rates at the shared rate, products and
// quotients of the counts as they stand there.
TEST(DtTime, ArithmeticCombinesAtTheSharedRate) {
    const DtTime a(5, 1, 1), b(3, 1, 1), film(10, 24, 1), pal(10, 25, 1);
    DtTime c = a, sum = film, d(7, 24, 1);
    c += b;
    c *= DtTimeIndex(2);
    sum += pal;
    const DtTime equal[] = {a + b, a - b, a * b, a / b, a % b, c};
    const DtTime mixed[] = {film + pal, film - pal, film * pal, film / pal, film % pal, sum};
    const int64_t equalCounts[] = {8, 2, 15, 1, 2, 16},
                  mixedCounts[] = {490, 10, 60000, 1, 10, 490};
    for (int i = 0; i < 6; ++i) {
        expectTime(equal[i], equalCounts[i], 1, 1);
        expectTime(mixed[i], mixedCounts[i], 600, 1);
    }
    expectTime(d + 3, 10, 24, 1);
    expectTime(d++, 7, 24, 1);
    expectTime(--d % 4, 3, 24, 1);
    // 24 fps and NTSC share 720000/1001; the 24 fps tick truncates to 29 there.
    expectTime(DtTime(1, 30000, 1001) + DtTime(1, 24, 1), 24 + 29, 720000, 1001);

    struct Shared {
        Rational a, b, shared;
    };
    const Shared shared[] = {
        {Rational(1000003, 1), Rational(7, 1), Rational(1000000, 1)},
        {Rational(1, 1000003), Rational(1, 7), Rational(1, 1000000)},
        {Rational(-1000003, 1), Rational(7, 1), Rational(-1000000, 1)},
        {Rational(-1, 1000003), Rational(1, 7), Rational(-1, 1000000)},
        {Rational(1000, 1), Rational(999, 1), Rational(999000, 1)},
        {Rational(2, 3), Rational(3, 4), Rational(1, 2)},
    };
    for (const Shared& row : shared) {
        EXPECT_EQ(DtTime::getSharedRate(row.a, row.b), row.shared);
        EXPECT_EQ((DtTime(1, row.a) + DtTime(1, row.b)).getRate(), row.shared);
    }
    // Integer rates share a common multiple, on which sums are exact.
    std::mt19937_64 random(7);
    std::uniform_int_distribution<int> rates(1, 1000);
    std::uniform_int_distribution<int64_t> counts(-1000000000, 1000000000);
    for (int i = 0; i < 5000; ++i) {
        const int na = rates(random), nb = rates(random);
        const DtTime x(counts(random), na, 1), y(counts(random), nb, 1), s = x + y;
        ASSERT_EQ(s.getRate().getDenominator(), 1) << text(x) << " + " << text(y);
        ASSERT_EQ(static_cast<Int128>(int64_t{s.getCount()}) * na * nb,
                  (static_cast<Int128>(int64_t{x.getCount()}) * nb +
                   static_cast<Int128>(int64_t{y.getCount()}) * na) *
                      s.getRate().getNumerator())
            << text(x) << " + " << text(y);
    }
}

TEST(DtTime, ComparisonsAreExactCrossProducts) {
    const DtTime one(1, 24, 1), less(24, 600, 1), same(25, 600, 1);
    EXPECT_TRUE(one == same && one != less && one > less && one >= less && !(one < same));
    EXPECT_TRUE(less < one && less <= one && one <= same && one >= same);
    EXPECT_EQ(int64_t{crossMultLhs(one, same)}, 600);
    EXPECT_EQ(int64_t{crossMultRhs(one, same)}, 600);
    EXPECT_TRUE(DtTime(30000, 30000, 1001) == DtTime(1001, 1, 1));
}

TEST(DtTime, TextForm) {
    EXPECT_EQ(text(DtTime(100, 24, 1)), "(100 @ (24/1=24))");
    std::ostringstream stream;
    DtTime(1, 2, 1).dump(stream) << "!";
    EXPECT_EQ(stream.str(), "(1 @ (2/1=2))!");
}

TEST(DtEx, StringErrorTexts) {
    using E = Qn::DtEx::DtStringError;
    EXPECT_STREQ(E::toString(static_cast<E::ErrorCode>(7)), "Unknown error.");
    const std::unique_ptr<Qn::ExBase> copy(E("dtTimeUtil", 106, E::NumeratorOverflow).clone());
    EXPECT_EQ(dynamic_cast<E&>(*copy).getErrorCode(), E::NumeratorOverflow);
    EXPECT_STREQ(copy->getFileName(), "dtTimeUtil");
    EXPECT_STREQ(Qn::DtEx::BadRefRate("f", 1).what(), "Mismatched reference clock rates.");
}
