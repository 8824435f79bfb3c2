// The cost of timing one cycle with a profiler on the hardware counter, against
// the same bookkeeping (count, total, minimum, maximum) written by hand around
// two std::chrono::steady_clock readings, and against the plain accumulating
// stopwatch Timer<HwIntervalTimer>. Each iteration times an empty cycle, so the
// figures are the overhead a profiled region pays.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>

#include <base/prProfiler.h>
#include <base/timer.h>

namespace {

void profilerCycle(benchmark::State& state) {
    Qn::PrProfiler profiler("bench", Qn::PrProfiler::Hardware);
    for (auto _ : state) {
        profiler.start();
        profiler.stop();
        profiler.endCycle();
    }
    benchmark::DoNotOptimize(profiler.getTotal());
}
BENCHMARK(profilerCycle);

void steadyClockCycle(benchmark::State& state) {
    uint64_t count = 0;
    double total = 0.0, minimum = 0.0, maximum = 0.0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        const auto stop = std::chrono::steady_clock::now();
        const double seconds = std::chrono::duration<double>(stop - start).count();
        minimum = count == 0 ? seconds : std::min(minimum, seconds);
        maximum = count == 0 ? seconds : std::max(maximum, seconds);
        total += seconds;
        ++count;
    }
    benchmark::DoNotOptimize(total + minimum + maximum);
}
BENCHMARK(steadyClockCycle);

void stopwatchCycle(benchmark::State& state) {
    Qn::Timer<Qn::HwIntervalTimer> stopwatch("bench");
    for (auto _ : state) {
        stopwatch.begin();
        stopwatch.end();
    }
    benchmark::DoNotOptimize(stopwatch.elapsed());
}
BENCHMARK(stopwatchCycle);

}  // namespace

BENCHMARK_MAIN();
