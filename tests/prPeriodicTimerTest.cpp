// The periodic timer: due times on the hardware counter, skipped calls,
// stopping, restarting and failing callbacks.
#include <base/prPeriodicTimer.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

#include <base/hwCounter.h>
#include <base/prEx.h>

namespace {

// Polls until the condition holds, for five seconds at most.
template <class F>
bool eventually(F&& condition) {
    const uint64_t start = Qn::HwCounter::timeStamp();
    while (!condition()) {
        if (Qn::HwCounter::seconds(start, Qn::HwCounter::timeStamp()) > 5.0) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

// The counter stamps at which the callback ran.
class Stamps {
  public:
    void add() {
        std::lock_guard<std::mutex> lock(_mutex);
        _stamps.push_back(Qn::HwCounter::timeStamp());
    }
    std::vector<uint64_t> get() {
        std::lock_guard<std::mutex> lock(_mutex);
        return _stamps;
    }

  private:
    std::mutex _mutex;
    std::vector<uint64_t> _stamps;
};

// The seconds from the timer's start to a stamp.
double sinceStart(const Qn::PrPeriodicTimer& timer, uint64_t stamp) {
    return Qn::HwCounter::seconds(timer.getStartStamp(), stamp);
}

}  // namespace

TEST(PrPeriodicTimer, RejectsPeriodsThatAreNotPositiveAndFinite) {
    for (double period : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
        SCOPED_TRACE(period);
        EXPECT_THROW(Qn::PrPeriodicTimer(period, [] {}), Qn::PrEx::ExInvalidDuration);
    }
    try {
        Qn::PrPeriodicTimer(-0.5, [] {});
    } catch (const Qn::PrEx& e) {
        EXPECT_STREQ(e.getReason(), "Invalid duration: <-0.5> seconds.");
    }
}

TEST(PrPeriodicTimer, CallsNeverBeforeDueAndSkipsOverrunCalls) {
    const double period = 0.005;
    Stamps stamps;
    bool first = true;
    Qn::PrPeriodicTimer timer(period, [&] {
        stamps.add();
        // The first call overruns four later due times.
        if (std::exchange(first, false)) std::this_thread::sleep_for(std::chrono::milliseconds(22));
    });
    timer.start();
    EXPECT_THROW(timer.start(), Qn::PrEx::ExAlreadyRunning);
    ASSERT_TRUE(eventually([&] { return timer.getCallCount() >= 4; }));
    timer.stop();
    EXPECT_FALSE(timer.isRunning());
    const std::vector<uint64_t> calls = stamps.get();
    EXPECT_EQ(calls.size(), timer.getCallCount());
    EXPECT_GE(timer.getMissedCount(), 4U);

    // Call k is due k periods after the start and due times only grow, so call i
    // comes no earlier than i + 1 periods (later still when calls were skipped,
    // which a loaded machine may add anywhere); the second call waits for the
    // overrun of the first.
    for (size_t i = 0; i < calls.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_GE(sinceStart(timer, calls[i]),
                  static_cast<double>(i + 1) * period - Qn::HwCounter::resolution());
    }
    EXPECT_GE(Qn::HwCounter::seconds(calls[0], calls[1]), 0.022 - Qn::HwCounter::resolution());
    std::this_thread::sleep_for(std::chrono::milliseconds(3 * 5));
    EXPECT_EQ(stamps.get().size(), calls.size()) << "no call after stop()";
}

TEST(PrPeriodicTimer, StopsPromptlyFromOutsideOrFromItsCallback) {
    Qn::PrPeriodicTimer idle(3600.0, [] {});
    idle.start();
    const uint64_t before = Qn::HwCounter::timeStamp();
    idle.stop();
    EXPECT_LT(Qn::HwCounter::seconds(before, Qn::HwCounter::timeStamp()), 1.0);
    idle.stop();  // nothing running: nothing to do

    Qn::PrPeriodicTimer* self = nullptr;
    Qn::PrPeriodicTimer timer(0.001, [&] {
        if (self->getCallCount() == 2) self->stop();
    });
    self = &timer;
    timer.start();
    ASSERT_TRUE(eventually([&] { return !timer.isRunning(); }));
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(timer.getCallCount(), 3U);
    // A restart begins a new count from a new start stamp.
    const uint64_t firstStart = timer.getStartStamp();
    timer.start();
    EXPECT_GT(timer.getStartStamp(), firstStart);
    ASSERT_TRUE(eventually([&] { return !timer.isRunning(); }));
    EXPECT_EQ(timer.getCallCount(), 3U);
}

TEST(PrPeriodicTimer, ACallbackFailureStopsTheTimerAndReachesStop) {
    Qn::PrPeriodicTimer timer(0.001, [] { throw std::runtime_error("sensor gone"); });
    timer.start();
    ASSERT_TRUE(eventually([&] { return !timer.isRunning(); }));
    EXPECT_EQ(timer.getCallCount(), 0U);
    try {
        timer.stop();
        ADD_FAILURE() << "the failure was not raised";
    } catch (const std::runtime_error& e) {
        EXPECT_STREQ(e.what(), "sensor gone");
    }
    EXPECT_NO_THROW(timer.stop()) << "raised once";
}
