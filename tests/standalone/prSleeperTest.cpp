// The sleeper singleton: its life, and sleeps that never end early.
#include <base/prSleeper.h>

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

#include <base/hwCounter.h>
#include <base/inSingletonEx.h>
#include <base/prEx.h>

using Qn::HwCounter;
using Qn::PrSleeper;

namespace {

double secondsSince(uint64_t start) { return HwCounter::seconds(start, HwCounter::timeStamp()); }

}  // namespace

TEST(PrSleeper, LivesFromCreateToDestroy) {
    EXPECT_THROW(PrSleeper::getInstance(), Qn::InSingletonEx::ExNotInitialized);
    PrSleeper::createInstance();
    EXPECT_THROW(PrSleeper::createInstance(), Qn::InSingletonEx::ExAlreadyInitialized);
    PrSleeper& sleeper = PrSleeper::getInstance();

    // Never early, from any number of threads at once.
    auto check = [&sleeper](double milliseconds) {
        for (int i = 0; i < 3; ++i) {
            const uint64_t start = HwCounter::timeStamp();
            sleeper.sleepMilliseconds(milliseconds);
            const double slept = secondsSince(start);
            EXPECT_GE(slept, milliseconds * 1e-3);
            EXPECT_LT(slept, milliseconds * 1e-3 + 0.5);
        }
    };
    std::thread other(check, 7.0);
    check(4.5);
    other.join();
    EXPECT_GE(sleeper.getMargin(), 20e-6);
    EXPECT_LE(sleeper.getMargin(), 20e-3);

    const uint64_t start = HwCounter::timeStamp();
    sleeper.sleepUntil(start - 1000);
    sleeper.sleepSeconds(-3.0);
    sleeper.sleepSeconds(0.0);
    EXPECT_LT(secondsSince(start), 0.5) << "past deadlines return at once";
    try {
        sleeper.sleepSeconds(std::nan(""));
        ADD_FAILURE() << "NaN accepted";
    } catch (const Qn::PrEx::ExInvalidDuration& e) {
        EXPECT_STREQ(e.getReason(), "Invalid duration: <nan> seconds.");
    }
    EXPECT_THROW(sleeper.sleepMilliseconds(HUGE_VAL), Qn::PrEx::ExInvalidDuration);

    PrSleeper::destroyInstance();
    EXPECT_THROW(PrSleeper::getInstance(), Qn::InSingletonEx::ExNotInitialized);
    EXPECT_THROW(PrSleeper::createInstance(), Qn::InSingletonEx::ExAlreadyDestroyed);
}
