#include <base/timer.h>

#include <gtest/gtest.h>

#include <sstream>

namespace {

// An interval timer on a clock the test moves by hand.
class ManualTimer : public Qn::IntervalTimer {
  public:
    static inline double now = 0.0;

    explicit ManualTimer(const char* name) : IntervalTimer(name) {}
    void start() override { _start = now; }
    void stop() override { _stop = now; }
    double timeInterval() const override { return _stop - _start; }
    double sinceStart() const override { return now - _start; }

  private:
    double _start = 0.0;
    double _stop = 0.0;
};

}  // namespace

TEST(Timer, AccumulatesIntervalsUntilCleared) {
    ManualTimer::now = 100.0;
    Qn::Timer<ManualTimer> timer("load");
    EXPECT_EQ(timer.elapsed(), 0.0);
    for (int i = 0; i < 2; ++i) {
        timer.begin();
        ManualTimer::now += 1.0;
        timer.end();
        ManualTimer::now += 5.0;  // not counted while stopped
    }
    EXPECT_DOUBLE_EQ(timer.elapsed(), 2.0);

    timer.begin();
    ManualTimer::now += 0.5;
    EXPECT_DOUBLE_EQ(timer.elapsed(), 2.5);  // the running interval counts

    timer.clear();
    EXPECT_EQ(timer.elapsed(), 0.0);
    // end() without begin() adds the interval from the last start.
    ManualTimer::now += 0.25;
    timer.end();
    EXPECT_DOUBLE_EQ(timer.elapsed(), 0.75);
}

TEST(Timer, NamesAndStreamOutput) {
    Qn::Timer<Qn::HwIntervalTimer> hw;
    EXPECT_STREQ(hw.getName(), "anonymous");
    hw.setName("frame");
    EXPECT_STREQ(hw.getName(), "frame");
    hw.setName(nullptr);
    EXPECT_STREQ(hw.getName(), "anonymous");

    Qn::Timer<Qn::TodIntervalTimer> tod("io");
    const Qn::TimerBase& base = tod;
    std::ostringstream text;
    text << base;
    EXPECT_EQ(text.str(), "io: 0 seconds");

    EXPECT_STREQ(Qn::HwIntervalTimer().getName(), "anonymous");
    EXPECT_STREQ(Qn::TodIntervalTimer().getName(), "anonymous");
}

TEST(HwIntervalTimer, StartLeavesTheOldStopStamp) {
    Qn::HwIntervalTimer timer("t");
    EXPECT_EQ(timer.timeInterval(), 0.0);  // both stamps 0
    timer.start();
    EXPECT_LT(timer.timeInterval(), 0.0);  // stop still 0
    timer.stop();
    const double first = timer.timeInterval();
    EXPECT_GE(first, 0.0);
    EXPECT_GE(timer.sinceStart(), first);

    const Qn::HwIntervalTimer copy = timer;
    EXPECT_EQ(copy.timeInterval(), first);
    EXPECT_STREQ(copy.getName(), "t");
}

TEST(TodIntervalTimer, IntervalCombinesSecondsAndMilliseconds) {
    using Tod = Qn::TodIntervalTimer;
    EXPECT_NEAR(Tod::getInterval({10, 900}, {11, 100}), 0.2, 1e-12);
    EXPECT_NEAR(Tod::getInterval({11, 100}, {10, 900}), -0.2, 1e-12);
    EXPECT_NEAR(Tod::getInterval({10, 0}, {12, 999}), 2.999, 1e-12);
    EXPECT_EQ(Tod::getInterval({5, 5}, {5, 5}), 0.0);

    Tod timer;
    EXPECT_EQ(timer.timeInterval(), 0.0);
    timer.start();
    timer.stop();
    EXPECT_GE(timer.timeInterval(), 0.0);
    EXPECT_LT(timer.timeInterval(), 10.0);
    EXPECT_GE(timer.sinceStart(), timer.timeInterval());
}
