#include <base/dtExact.h>

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <map>
#include <random>

#include <base/dtEx.h>
#include <base/dtRefTimeFactory.h>
#include <base/dtTimeLess.h>
#include <base/dtTimeMark.h>

namespace {

using Qn::DtInt128;
using Qn::DtRounding;
using Qn::DtTime;
using Qn::DtTimeIndex;
using Qn::Rational;

DtInt128 floorDiv(DtInt128 a, DtInt128 b) { return (a - ((a % b) + b) % b) / b; }

// n / d (d > 0) in the roundings AwayFromZero ... HalfEven (DtRounding + 1),
// from truncation and floor(x + 1/2) rather than from the library's floor and
// remainder.
std::array<DtInt128, 6> reference(DtInt128 n, DtInt128 d) {
    const DtInt128 t = n / d, r = n % d, away = r == 0 ? t : n < 0 ? t - 1 : t + 1;
    const DtInt128 halfUp = floorDiv(2 * n + d, 2 * d), tie = 2 * (r < 0 ? -r : r) == d;
    return {away,           t,
            halfUp,         -floorDiv(-n, d),
            floorDiv(n, d), tie && t % 2 == 0 ? t : tie ? away : halfUp};
}

Rational clockRate() { return Qn::DtRefTimeFactory::getInstance().getClockSource().getRate(); }

}  // namespace

// A million random and extreme conversions in every rounding against the
// 128-bit reference; where DtTimeIndex::convert is exact (toward zero, 32-bit
// factor terms, a 64-bit product) it gives the same result.
TEST(DtTimeIndex, ConvertExactIsTheRoundedRationalResult) {
    std::mt19937_64 random(8);
    std::uniform_int_distribution<int64_t> counts(INT64_MIN, INT64_MAX);
    std::uniform_int_distribution<int> wide(INT_MIN, INT_MAX), small(-40000, 40000);
    const int64_t extremeCounts[] = {INT64_MIN, INT64_MIN + 1, -1, 0, 1, INT64_MAX};
    const int extremeTerms[] = {INT_MIN, -INT_MAX, -1, 1, 1001, 30000, INT_MAX};
    auto term = [&](int i, bool denominator) {
        const int t = i % 5 == 0 ? extremeTerms[random() % 7]
                      : i % 2    ? small(random)
                                 : wide(random);
        return t == 0 || (denominator && t <= 0) ? (denominator ? 1001 : 24) : t;
    };
    for (int i = 0; i < 1000000; ++i) {
        const int64_t count = i % 7 == 0 ? extremeCounts[random() % 6] : counts(random) >> (i % 64);
        const Rational from(term(i, false), term(i, true)),
            to(term(i / 3, false), term(i / 3, true));
        DtInt128 n = DtInt128{count} * from.getDenominator() * to.getNumerator();
        DtInt128 d = DtInt128{from.getNumerator()} * to.getDenominator();
        if (d < 0) n = -n, d = -d;
        const std::array<DtInt128, 6> want = reference(n, d);
        for (int style = -1; style <= 4; ++style) {
            const DtRounding rounding = static_cast<DtRounding>(style);
            if (want[style + 1] < INT64_MIN || want[style + 1] > INT64_MAX) {
                ASSERT_THROW(DtTimeIndex(count).convertExact(from, to, rounding),
                             Qn::DtEx::ExOverflow);
                continue;
            }
            ASSERT_EQ(int64_t{DtTimeIndex(count).convertExact(from, to, rounding)},
                      static_cast<int64_t>(want[style + 1]))
                << DtTime(count, from) << " to " << DtTime(0, to) << " style " << style;
        }
        const int64_t a = int64_t{from.getDenominator()} * to.getNumerator();
        const int64_t b = int64_t{to.getDenominator()} * from.getNumerator();
        int64_t product;
        if (a == int32_t(a) && b == int32_t(b) && a != INT_MIN && b != INT_MIN &&
            !__builtin_mul_overflow(count, b < 0 ? -a : a, &product)) {
            ASSERT_EQ(int64_t{DtTimeIndex(count).convert(from, to, std::round_toward_zero)},
                      int64_t{DtTimeIndex(count).convertExact(from, to, DtRounding::TowardZero)});
        }
    }
}

// DtTimeLess against the instants compared as whole and fractional seconds;
// the operators agree with it where their 64-bit products cannot wrap.
TEST(DtTimeLess, IsAnExactStrictWeakOrder) {
    std::mt19937_64 random(6);
    std::uniform_int_distribution<int64_t> counts(INT64_MIN, INT64_MAX);
    std::uniform_int_distribution<int> wide(INT_MIN, INT_MAX), small(1, 1000);
    // The instant as whole seconds w and the fraction p / q of a second.
    struct Split {
        DtInt128 w, p, q;
    };
    auto split = [](const DtTime& t) {
        const int n = t.getRate().getNumerator();
        const DtInt128 q = n < 0 ? -DtInt128{n} : n;
        const DtInt128 v = DtInt128{t.getCount()} * t.getRate().getDenominator() * (n < 0 ? -1 : 1);
        return Split{floorDiv(v, q), v - floorDiv(v, q) * q, q};
    };
    for (int i = 0; i < 200000; ++i) {
        const int na = i % 3 ? small(random) : wide(random) | 1,
                  nb = i % 4 ? small(random) : wide(random) | 1;
        const int64_t ca = (counts(random) >> (i % 64)) / 16, k = small(random) % 16 + 1;
        const int den = small(random);
        // Every fifth pair is one instant at two rates.
        const DtTime a(ca * k, na, den);
        const DtTime b = i % 5 ? DtTime(counts(random) >> (i % 64), nb, small(random))
                               : DtTime(ca, na, den * int(k));
        const Split x = split(a), y = split(b);
        const bool less = x.w < y.w || (x.w == y.w && x.p * y.q < y.p * x.q);
        const bool same = x.w == y.w && x.p * y.q == y.p * x.q;
        ASSERT_EQ(Qn::DtTimeLess()(a, b), less) << a << " " << b;
        ASSERT_EQ(Qn::DtTimeLess::compare(a, b) == 0, same) << a << " " << b;
        const DtInt128 lhs =
            DtInt128{a.getCount()} * a.getRate().getDenominator() * b.getRate().getNumerator();
        const DtInt128 rhs =
            DtInt128{b.getCount()} * b.getRate().getDenominator() * a.getRate().getNumerator();
        if (na > 0 && nb > 0 && lhs == int64_t(lhs) && rhs == int64_t(rhs)) {
            ASSERT_EQ(a < b, less);
            ASSERT_EQ(a == b, same);
            ASSERT_EQ(a > b, !less && !same);
        }
    }
    std::map<DtTime, int, Qn::DtTimeLess> timeline{{DtTime(1, 24, 1), 1}, {DtTime(25, 600, 1), 2}};
    EXPECT_EQ(timeline.size(), 1u);  // the same instant
    EXPECT_TRUE(Qn::DtTimeLess()(DtTime(INT64_MAX, 2, 1), DtTime(INT64_MAX, 1, 1)));
    EXPECT_TRUE(Qn::DtTimeLess()(DtTime(1, -24, 1), DtTime(0, 24, 1)));  // -1/24 s
}

// Reference times and frames of one mark: the frame that contains the instant,
// and the first tick of a frame, which leads back to that frame.
TEST(DtTimeMark, ExactEvaluationFindsTheFrameOfEveryInstant) {
    auto& factory = Qn::DtRefTimeFactory::getInstance();
    const Rational clock = clockRate();
    ASSERT_EQ(clock.getDenominator(), 1);
    const Qn::DtRefTime origin = factory.create(1000, "HwCounter");
    const int64_t years = int64_t{3} * 365 * 86400 * clock.getNumerator();
    for (const Rational rate :
         {Rational(30000, 1001), Rational(24, 1), Rational(120000, 1001), Rational(48000, 1)}) {
        const Qn::DtTimeMark mark(DtTime(10, rate), origin);
        for (int64_t ticks : {int64_t{0}, int64_t{clock.getNumerator()},
                              -int64_t{clock.getNumerator()} / 7, years}) {
            const Qn::DtTimeMark at = mark.evalTimeExact(factory.create(1000 + ticks, "HwCounter"));
            const int64_t frames = static_cast<int64_t>(
                floorDiv(DtInt128{ticks} * rate.getNumerator(),
                         DtInt128{clock.getNumerator()} * rate.getDenominator()));
            EXPECT_EQ(int64_t{at.getStreamTime().getCount()}, 10 + frames);
            const Qn::DtTimeMark start = mark.evalTimeExact(at.getStreamTime());
            const DtInt128 startTicks =
                -floorDiv(-DtInt128{frames} * rate.getDenominator() * clock.getNumerator(),
                          rate.getNumerator());
            EXPECT_EQ(int64_t{start.getRefTime().getCount()},
                      1000 + static_cast<int64_t>(startTicks));
            EXPECT_TRUE(mark.evalTimeExact(start.getRefTime()).getStreamTime() ==
                        at.getStreamTime());
        }
    }
    EXPECT_THROW(Qn::DtTimeMark().evalTimeExact(origin), Qn::DtEx::BadRefRate);
    EXPECT_THROW(Qn::DtTimeMark().evalTimeExact(DtTime(1, 24, 1)), Qn::DtEx::BadRefRate);
    EXPECT_EQ(int64_t{factory.createExact(origin, 30, Rational(30000, 1001)).getCount()},
              1000 + 30 * 1001 * int64_t{clock.getNumerator()} / 30000);
    EXPECT_THROW(factory.createExact(Qn::DtRefTime(), 1, Rational(24, 1)), Qn::DtEx::BadRefRate);
    EXPECT_THROW(factory.createExact(origin, INT64_MAX, Rational(1, 1)), Qn::DtEx::ExOverflow);
}
