#include <base/hwCounter.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>

#include <base/exInternalError.h>
#include <base/hwCounterIA32.h>

TEST(HwCounterEng, RateIsScaledToThirtyOneBits) {
    struct Row {
        uint64_t frequency;
        int numerator;
        unsigned shift;
    };
    const Row rows[] = {
        {3579545, 3579545, 0},
        {3000000000ULL, 1500000000, 1},
        {0x7FFFFFFFULL, 0x7FFFFFFF, 0},
        {0x80000000ULL, 0x40000000, 1},
        {1000000000000ULL, 1953125000, 9},
        {UINT64_MAX, 0x7FFFFFFF, 33},
        {1, 1, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.frequency);
        const Qn::HwCounterIA32 engine(row.frequency);
        EXPECT_EQ(engine.getRateNumerator(), row.numerator);
        EXPECT_EQ(engine.getRateDenominator(), 1);
        EXPECT_EQ(engine.getShift(), row.shift);
        EXPECT_EQ(engine.resolution(), 1.0 / row.numerator);
    }
}

TEST(HwCounterEng, ZeroFrequencyIsAnAssertionFailure) {
    try {
        Qn::HwCounterIA32 engine(0);
        FAIL() << "no exception";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.getReason(), "Assertion '_hwCounterFrequency != 0' failed.");
    }
}

TEST(HwCounterEng, SecondsAreSignedDifferencesTimesTheCycle) {
    const Qn::HwCounterIA32 engine(3000000000ULL);
    const uint64_t t = 123456789;
    EXPECT_EQ(engine.seconds(t, t), 0.0);
    EXPECT_DOUBLE_EQ(engine.seconds(t, t + 1500000000), 1.0);
    EXPECT_EQ(engine.seconds(t + 750, t), -engine.seconds(t, t + 750));
    EXPECT_DOUBLE_EQ(engine.seconds(0, UINT64_MAX), -engine.resolution());
}

TEST(HwCounterEng, TimeStampIsTheShiftedSystemCounter) {
    const Qn::HwCounterIA32 engine(UINT64_MAX);
    const uint64_t before = Qn::OsCpuInfo::getHwCounterValue() >> 33;
    const uint64_t stamp = engine.timeStamp();
    const uint64_t after = Qn::OsCpuInfo::getHwCounterValue() >> 33;
    EXPECT_LE(before, stamp);
    EXPECT_LE(stamp, after);
}

TEST(HwCounterEng, DumpWritesClassRateAndCycle) {
    std::ostringstream text;
    Qn::HwCounterIA32(3579545).dump(text);
    EXPECT_EQ(text.str(),
              "HwCounterIA32:\nRate         = 3579545/1\nCycle        = 2.79365e-07 seconds\n");
}

TEST(HwCounter, UsesTheSystemEngineAndRunsForward) {
    const Qn::ObjPtr<Qn::HwCounterEng> system = Qn::HwCounterEng::create();
    EXPECT_EQ(Qn::HwCounter::getRateNumerator(), system->getRateNumerator());
    EXPECT_EQ(Qn::HwCounter::getRateDenominator(), system->getRateDenominator());
    EXPECT_EQ(Qn::HwCounter::resolution(), system->resolution());

    const uint64_t t0 = Qn::HwCounter::timeStamp();
    const double s = Qn::HwCounter::seconds();
    const uint64_t t1 = Qn::HwCounter::timeStamp();
    EXPECT_LE(t0, t1);
    EXPECT_GE(Qn::HwCounter::seconds(t0, t1), 0.0);
    EXPECT_LE(static_cast<double>(t0) * Qn::HwCounter::resolution(), s);

    std::ostringstream mine, its;
    Qn::HwCounter::dump(mine);
    system->dump(its);
    EXPECT_EQ(mine.str(), its.str());
}
