// Profiler arithmetic on a manual clock, misuse, and the consolidated report.
#include <base/prProfiler.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include <base/prEx.h>
#include <base/prProfilerRegistry.h>
#include <support/manualTimer.h>
#include <support/reasonOf.h>

namespace {

using QnTest::ManualTimer;

class PrProfilerTest : public ::testing::Test {
  protected:
    Qn::ObjPtr<Qn::PrProfiler> make(const char* name) {
        return Qn::ObjPtr<Qn::PrProfiler>(
            new Qn::PrProfiler(name, Qn::ObjPtr<Qn::IntervalTimer>(new ManualTimer(now))));
    }
    // One start/stop over the given seconds.
    void time(Qn::PrProfiler& profiler, double seconds) {
        profiler.start();
        now += seconds;
        profiler.stop();
    }
    static std::string reportOf(const Qn::PrProfiler& profiler) {
        std::ostringstream text;
        text << profiler;
        return text.str();
    }

    double now = 1000.0;
};

using QnTest::reasonOf;

}  // namespace

TEST_F(PrProfilerTest, AccumulatesCycles) {
    auto profiler = make("decode");
    time(*profiler, 0.25);
    profiler->endCycle();
    // One cycle of two stretches, with idle time between them not counted.
    time(*profiler, 0.5);
    now += 7.0;
    time(*profiler, 0.25);
    EXPECT_DOUBLE_EQ(profiler->getOpenCycle(), 0.75);
    profiler->endCycle();
    time(*profiler, 0.5);
    profiler->endCycle();
    time(*profiler, 3.0);  // open: not part of the figures

    EXPECT_EQ(profiler->getCount(), 3U);
    EXPECT_DOUBLE_EQ(profiler->getTotal(), 1.5);
    EXPECT_DOUBLE_EQ(profiler->getAverage(), 0.5);
    EXPECT_DOUBLE_EQ(profiler->getMinimum(), 0.25);
    EXPECT_DOUBLE_EQ(profiler->getMaximum(), 0.75);
    EXPECT_EQ(reportOf(*profiler),
              "cycles = 3, total = 1.500000 s, average = 0.500000 s, minimum = 0.250000 s, "
              "maximum = 0.750000 s");

    profiler->reset();
    EXPECT_EQ(profiler->getOpenCycle(), 0.0);
    EXPECT_EQ(reportOf(*profiler),
              "cycles = 0, total = 0.000000 s, average = 0.000000 s, minimum = 0.000000 s, "
              "maximum = 0.000000 s");
    // The first cycle after a reset sets the minimum, even above the old one.
    time(*profiler, 2.0);
    profiler->endCycle();
    EXPECT_DOUBLE_EQ(profiler->getMinimum(), 2.0);
    // A cycle with nothing timed counts as 0 seconds.
    profiler->endCycle();
    EXPECT_EQ(profiler->getCount(), 2U);
    EXPECT_EQ(profiler->getMinimum(), 0.0);
    EXPECT_DOUBLE_EQ(profiler->getAverage(), 1.0);
}

TEST_F(PrProfilerTest, ClockSetBackAddsNothing) {
    auto profiler = make("tod");
    profiler->start();
    now -= 5.0;
    profiler->stop();
    profiler->endCycle();
    EXPECT_EQ(profiler->getTotal(), 0.0);
    EXPECT_EQ(profiler->getMinimum(), 0.0);
}

TEST_F(PrProfilerTest, MisuseIsRefusedAndChangesNothing) {
    auto profiler = make("p");
    EXPECT_EQ(reasonOf<Qn::PrEx::ExNotRunning>([&] { profiler->stop(); }), "Not running: <p>.");
    profiler->start();
    EXPECT_EQ(reasonOf<Qn::PrEx::ExAlreadyRunning>([&] { profiler->start(); }),
              "Already running: <p>.");
    EXPECT_EQ(reasonOf<Qn::PrEx::ExStillRunning>([&] { profiler->endCycle(); }),
              "Cycle ended while running: <p>.");
    EXPECT_EQ(profiler->getCount(), 0U);
    now += 1.0;
    profiler->stop();
    EXPECT_DOUBLE_EQ(profiler->getOpenCycle(), 1.0) << "the first start still counts";
    // reset() stops a running profiler, so it can start again.
    profiler->start();
    profiler->reset();
    EXPECT_FALSE(profiler->isRunning());
    EXPECT_NO_THROW(profiler->start());
    EXPECT_STREQ(Qn::PrProfiler(nullptr, Qn::PrProfiler::Hardware).getName(), "anonymous");
}

TEST_F(PrProfilerTest, RegistryReportsEveryProfilerInOneTable) {
    Qn::PrProfilerRegistry profilers;
    Qn::PrProfiler& load = profilers.add(make("load"));
    Qn::PrProfiler& draw = profilers.add(make("draw"));
    EXPECT_EQ(reasonOf<Qn::PrEx::ExDuplicateProfiler>([&] { profilers.add(make("load")); }),
              "Duplicate profiler: <load>.");
    EXPECT_THROW(profilers.create("draw", Qn::PrProfiler::TimeOfDay), Qn::PrEx);
    EXPECT_EQ(profilers.getCount(), 2U);
    EXPECT_EQ(&profilers.get("draw"), &draw);
    EXPECT_EQ(profilers.find("paint"), nullptr);
    EXPECT_EQ(reasonOf<Qn::PrEx::ExUnknownProfiler>([&] { profilers.get("paint"); }),
              "Unknown profiler: <paint>.");

    time(load, 0.125);
    load.endCycle();
    for (double seconds : {0.5, 1.5}) {
        time(draw, seconds);
        draw.endCycle();
    }
    std::ostringstream table;
    profilers.report(table);
    EXPECT_EQ(table.str(),
              "Profiler                   cycles          total        average        minimum"
              "        maximum\n"
              "------------------------ -------- -------------- -------------- --------------"
              " --------------\n"
              "load                            1       0.125000       0.125000       0.125000"
              "       0.125000\n"
              "draw                            2       2.000000       1.000000       0.500000"
              "       1.500000\n");

    profilers.resetAll();
    EXPECT_EQ(draw.getCount(), 0U);
    EXPECT_TRUE(profilers.remove("load"));
    EXPECT_FALSE(profilers.remove("load"));
    EXPECT_NE(profilers.find("draw"), nullptr);
    EXPECT_EQ(profilers.getCount(), 1U);
}
