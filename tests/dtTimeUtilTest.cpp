#include <base/dtTimeUtil.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <random>
#include <string>

#include <base/dtEx.h>

namespace {

using Qn::DtTime;
using Qn::DtTimeIndex;
using Qn::DtTimeUtil;
using Qn::Interval;
using Qn::Rational;
using Code = Qn::DtEx::DtStringError::ErrorCode;

std::string dtString(const DtTime& t) { return DtTimeUtil::getDtStringFromDtTime(t).get(); }

}  // namespace

TEST(DtTimeUtil, ReadsAcceptedDtStrings) {
    struct Row {
        const char* text;
        int64_t count;
        int numerator, denominator;
    };
    const Row rows[] = {
        {"100 24 1", 100, 24, 1},
        {"5 48000 -2", 5, -24000, 1},
        {"5 24abc 1", 5, 24, 1},
        {"   5    24   1   ", 5, 24, 1},
        {"5 24 1 junk 9", 5, 24, 1},
        {"5 +24 -1", 5, -24, 1},
        {"-9223372036854775808 2147483647 -2147483647", INT64_MIN, -1, 1},
        {"5 -2147483648 3", 5, INT_MIN, 3},
        {"x 24 1", 0, 24, 1},                             // a count that is no number reads as 0
        {"99999999999999999999 24 1", INT64_MAX, 24, 1},  // and a huge one saturates
        {"5\t7 24 1", 5, 24, 1},                          // fields end at blanks only
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const DtTime t = DtTimeUtil::getDtTimeFromDtString(row.text);
        EXPECT_EQ(int64_t{t.getCount()}, row.count);
        EXPECT_EQ(t.getRate(), Rational(row.numerator, row.denominator));
    }
}

TEST(DtTimeUtil, RejectsMalformedDtStrings) {
    struct Row {
        std::string text;
        Code code;
        int line;
    };
    const std::string longDigits(5000, '7');
    const Row rows[] = {
        {"5 x 1", Code::NumeratorMalformed, 111},
        {"", Code::NumeratorMalformed, 111},
        {"5", Code::NumeratorMalformed, 111},
        {"5 - 1", Code::NumeratorMalformed, 111},
        {"5 2147483648 1", Code::NumeratorOverflow, 106},
        {"5 -2147483649 1", Code::NumeratorOverflow, 106},
        {"5 " + longDigits + " 1", Code::NumeratorOverflow, 106},
        {"5 24", Code::DenominatorMalformed, 126},
        {"5 24 y", Code::DenominatorMalformed, 126},
        {"5\t24 1", Code::DenominatorMalformed, 126},
        {"5 24 -" + longDigits, Code::DenominatorOverflow, 121},
        {longDigits + " x 1", Code::NumeratorMalformed, 111},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text.substr(0, 40));
        try {
            DtTimeUtil::getDtTimeFromDtString(row.text.c_str());
            ADD_FAILURE() << "no exception";
        } catch (const Qn::DtEx::DtStringError& e) {
            EXPECT_EQ(e.getErrorCode(), row.code);
            EXPECT_EQ(e.getLineNo(), row.line);
            EXPECT_STREQ(e.getFileName(), "dtTimeUtil");
            EXPECT_EQ(std::string(e.what()), std::string("DtString conversion error: ") +
                                                 Qn::DtEx::DtStringError::toString(row.code));
        }
    }
    EXPECT_THROW(DtTimeUtil::getDtTimeFromDtString(nullptr), Qn::DtEx::DtStringError);
    EXPECT_THROW(DtTimeUtil::getDtTimeFromDtString("5 0 1"), Qn::DtEx::BadRate);
    EXPECT_THROW(DtTimeUtil::getDtTimeFromDtString("5 -0 7"), Qn::DtEx::BadRate);
    EXPECT_THROW(DtTimeUtil::getDtTimeFromDtString("5 24 0"), Qn::RationalEx::ExDenominatorZero);
    EXPECT_THROW(DtTimeUtil::getDtTimeFromDtString("5 0 0"), Qn::RationalEx::ExDenominatorZero);
}

TEST(DtTimeUtil, DtStringsRoundTripExactly) {
    EXPECT_EQ(dtString(DtTime(100, 30000, 1001)), "100 30000 1001");
    EXPECT_EQ(dtString(DtTime(INT64_MIN, INT_MIN, INT_MAX)),
              "-9223372036854775808 -2147483648 2147483647");
    std::mt19937_64 random(11);
    std::uniform_int_distribution<int> terms(INT_MIN + 1, INT_MAX);
    for (int i = 0; i < 20000; ++i) {
        const DtTime t(static_cast<int64_t>(random()) >> (i % 64), terms(random) | 1,
                       terms(random) | 1);
        const DtTime back = DtTimeUtil::getDtTimeFromDtString(dtString(t).c_str());
        ASSERT_EQ(int64_t{back.getCount()}, int64_t{t.getCount()}) << dtString(t);
        ASSERT_EQ(back.getRate(), t.getRate()) << dtString(t);
    }
}

TEST(DtTimeUtil, SecondsBothWays) {
    EXPECT_EQ(DtTimeUtil::getSecondsDouble(DtTime(1001, 30000, 1001)), 1001.0 / 30000.0 * 1001.0);
    EXPECT_EQ(DtTimeUtil::getSecondsFloat(DtTime(3, 3, 1)), (1.0f / 3.0f) * 3.0f);

    const Rational film(24, 1);
    EXPECT_EQ(int64_t{DtTimeUtil::getDtTimeFromSeconds(film, -0.5).getCount()}, -12);
    EXPECT_EQ(int64_t{DtTimeUtil::getDtTimeFromSeconds(film, 0.99).getCount()}, 23);
    EXPECT_EQ(int64_t{DtTimeUtil::getDtTimeFromSeconds(film, 0.99f).getCount()}, 23);
    EXPECT_EQ(DtTimeUtil::getDtTimeFromSeconds(film, 2.0).getRate(), film);
    EXPECT_EQ(int64_t{DtTimeUtil::getDtTimeFromSeconds(film, 1e300).getCount()}, INT64_MIN);
    EXPECT_THROW(DtTimeUtil::getDtTimeFromSeconds(Rational(0, 1), 1.0), Qn::DtEx::BadRate);
    EXPECT_THROW(DtTimeUtil::getDtTimeFromSeconds(Rational(0, 1), 1.0f), Qn::DtEx::BadRate);
}

TEST(DtTimeUtil, IntervalsCoverEveryTickTheyTouch) {
    const DtTime film(999, 24, 1);  // only the rate is used
    struct Row {
        double lower, upper;
        int64_t wantLower, wantUpper;
    };
    const Row rows[] = {
        {0.5, 1.01, 12, 25},   {0.5, 1.0, 12, 24}, {-1.01, -0.5, -24, -12},
        {-0.99, 0.01, -23, 1}, {0.0, 0.0, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.lower << ", " << row.upper);
        const Interval<DtTimeIndex> d = DtTimeUtil::getInclusiveDtTimeIndexInterval(
            film, Interval<double>(row.lower, row.upper));
        EXPECT_EQ(int64_t{d.getLower()}, row.wantLower);
        EXPECT_EQ(int64_t{d.getUpper()}, row.wantUpper);
        const Interval<DtTimeIndex> f = DtTimeUtil::getInclusiveDtTimeIndexInterval(
            film, Interval<float>(static_cast<float>(row.lower), static_cast<float>(row.upper)));
        EXPECT_EQ(int64_t{f.getLower()}, row.wantLower);
        EXPECT_EQ(int64_t{f.getUpper()}, row.wantUpper);
    }
    // The float form takes its ceiling through 32 bits.
    const Interval<DtTimeIndex> huge =
        DtTimeUtil::getInclusiveDtTimeIndexInterval(film, Interval<float>(0.0f, 1e9f));
    EXPECT_EQ(int64_t{huge.getUpper()}, INT32_MIN);

    const Interval<DtTimeIndex> counts(12, 36);
    EXPECT_EQ(DtTimeUtil::getSecondsIntervalDouble(film, counts), Interval<double>(0.5, 1.5));
    EXPECT_EQ(DtTimeUtil::getSecondsIntervalFloat(film, counts), Interval<float>(0.5f, 1.5f));
}
