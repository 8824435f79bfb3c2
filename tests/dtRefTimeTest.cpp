#include <base/dtRefTimeFactory.h>

#include <gtest/gtest.h>

#include <sstream>

#include <base/dtRefClockEx.h>
#include <base/dtTimeMark.h>
#include <base/hwCounter.h>

namespace {

using Qn::DtRefTime;
using Qn::DtTime;
using Qn::DtTimeIndex;
using Qn::DtTimeMark;
using Qn::Rational;

template <class T>
std::string text(const T& value) {
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

Qn::DtRefTimeFactory& factory() { return Qn::DtRefTimeFactory::getInstance(); }

Rational clockRate() { return factory().getClockSource().getRate(); }

}  // namespace

TEST(DtRefTimeFactory, MakesTimesOnTheHwCounterClock) {
    EXPECT_EQ(&factory(), &Qn::DtRefTimeFactory::getInstance());
    EXPECT_STREQ(factory().getClockSource().getName(), "HwCounter");
    EXPECT_EQ(clockRate(),
              Rational(Qn::HwCounter::getRateNumerator(), Qn::HwCounter::getRateDenominator()));

    const DtRefTime first = factory().create(), second = factory().create();
    EXPECT_TRUE(first.getCount() >= 0 && first.getCount() <= second.getCount());
    const DtRefTime given = factory().create(5, "HwCounter");
    EXPECT_EQ(text(given), text(DtTime(5, clockRate())));
    EXPECT_EQ(first.getRate(), clockRate());

    // One tick at 24/1 later, converted toward zero to the clock's rate.
    const DtRefTime moved = factory().create(given, 1, Rational(24, 1));
    EXPECT_EQ(
        int64_t{moved.getCount()},
        5 + int64_t{DtTimeIndex(1).convert(Rational(24, 1), clockRate(), std::round_toward_zero)});
}

TEST(DtRefTimeFactory, OtherClockNamesAreRefused) {
    for (const char* name : {"hwcounter", "HwCounter ", "", static_cast<const char*>(nullptr)}) {
        try {
            factory().create(5, name);
            ADD_FAILURE() << "no exception for " << (name != nullptr ? name : "(null)");
        } catch (const Qn::DtRefClockEx::SourceMismatch& e) {
            EXPECT_STREQ(e.what(), "Clock source name does not match system reference clock.");
            EXPECT_EQ(std::string(e.getFileName()) + ":" + std::to_string(e.getLineNo()),
                      "dtRefTime:136");
        }
    }
}

TEST(DtRefTime, DefaultsAndTextForms) {
    EXPECT_EQ(text(DtRefTime()), "(0 @ (0/1=0))");
    EXPECT_EQ(text(DtTimeMark()), "((0 @ (1/1=1)) (0 @ (0/1=0)))");
    const DtTimeMark mark(DtTime(100, 24, 1), factory().create(7, "HwCounter"));
    EXPECT_EQ(text(mark), "((100 @ (24/1=24)) " + text(DtTime(7, clockRate())) + ")");
}

TEST(DtTimeMark, EvaluatesEitherTimeFromTheOther) {
    const Rational rate = clockRate();
    const DtRefTime origin = factory().create(1000, "HwCounter");
    const DtTimeMark mark(DtTime(10, 24, 1), origin);

    // Two seconds of reference ticks later the stream is 48 frames further.
    const DtRefTime twoSeconds =
        factory().create(1000 + 2 * int64_t{rate.getNumerator()}, "HwCounter");
    const DtTimeMark atRef = mark.evalTime(twoSeconds);
    EXPECT_EQ(int64_t{atRef.getRefTime().getCount()}, int64_t{twoSeconds.getCount()});
    EXPECT_EQ(text(atRef.getStreamTime()),
              text(DtTime(10 + 48 * int64_t{rate.getDenominator()}, 24, 1)));

    // Frame 34 at 24/1 is one second after the mark; frame 50 at 48/1 is 30
    // ticks of 48/1 after it.
    const DtTimeMark atFrame = mark.evalTime(DtTime(34, 24, 1));
    EXPECT_EQ(
        int64_t{atFrame.getRefTime().getCount()},
        1000 + int64_t{DtTimeIndex(24).convert(Rational(24, 1), rate, std::round_toward_zero)});
    const DtTimeMark atOtherRate = mark.evalTime(DtTime(50, 48, 1));
    EXPECT_EQ(
        int64_t{atOtherRate.getRefTime().getCount()},
        1000 + int64_t{DtTimeIndex(30).convert(Rational(48, 1), rate, std::round_toward_zero)});

    // Back again: the reference time of a frame gives that frame.
    EXPECT_TRUE(mark.evalTime(atFrame.getRefTime()).getStreamTime() == DtTime(34, 24, 1));

    // A mark whose reference time no clock produced has no rate to convert from.
    EXPECT_THROW(DtTimeMark().evalTime(twoSeconds), Qn::RationalEx::ExDenominatorZero);
}
