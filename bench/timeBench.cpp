// Clocks and discrete time against their usual peers, side by side:
//  - HwCounter::timeStamp() against a direct clock_gettime(CLOCK_MONOTONIC)
//    and std::chrono::steady_clock::now();
//  - DtTime equal-rate addition and equal- and mixed-rate comparison against
//    the same work on std::chrono::duration (whose rates are compile-time);
//  - DtTimeIndex::convert against libavutil's av_rescale_rnd, when installed,
//    and DtTimeIndex::convertExact against convert;
//  - DtTimecode text from a time and a frame from text at 29.97 drop-frame
//    against libavutil's av_timecode_make_string and
//    av_timecode_init_from_string, when installed.
// Each time benchmark walks the same 1024 pseudo-random counts; the scalar
// result of every operation is kept observable (in a register), so neither
// side is folded away or vectorised, and both pay the same per operation.
#include <benchmark/benchmark.h>

#include <time.h>

#include <chrono>
#include <cstdint>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include <base/dtTime.h>
#include <base/dtTimecode.h>
#include <base/hwCounter.h>

#if defined(QN_HAVE_AVUTIL)
extern "C" {
#include <libavutil/mathematics.h>
#include <libavutil/timecode.h>
}
#endif

namespace {

constexpr size_t Count = 1024;

using Film = std::chrono::duration<int64_t, std::ratio<1, 24>>;
using Pal = std::chrono::duration<int64_t, std::ratio<1, 25>>;

const std::vector<int64_t>& counts() {
    static const std::vector<int64_t> values = [] {
        std::mt19937_64 random(3);
        std::uniform_int_distribution<int64_t> ticks(-1000000, 1000000);
        std::vector<int64_t> v(Count);
        for (int64_t& x : v) x = ticks(random);
        return v;
    }();
    return values;
}

template <class T, class Make>
std::vector<T> times(Make make) {
    std::vector<T> v;
    for (int64_t c : counts()) v.push_back(make(c));
    return v;
}

void clockHwCounterTimeStamp(benchmark::State& state) {
    Qn::HwCounter::timeStamp();  // the engine exists before timing starts
    for (auto _ : state) benchmark::DoNotOptimize(Qn::HwCounter::timeStamp());
}

void clockGettimeMonotonic(benchmark::State& state) {
    for (auto _ : state) {
        timespec now;
        clock_gettime(CLOCK_MONOTONIC, &now);
        benchmark::DoNotOptimize(now);
    }
}

void clockSteadyClockNow(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(std::chrono::steady_clock::now());
}

void addEqualRateDtTime(benchmark::State& state) {
    const auto v = times<Qn::DtTime>([](int64_t c) { return Qn::DtTime(c, 24, 1); });
    for (auto _ : state) {
        Qn::DtTime sum(0, 24, 1);
        for (const Qn::DtTime& t : v) {
            sum += t;
            benchmark::DoNotOptimize(int64_t{sum.getCount()});
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

void addEqualRateChrono(benchmark::State& state) {
    const auto v = times<Film>([](int64_t c) { return Film(c); });
    for (auto _ : state) {
        Film sum(0);
        for (const Film& t : v) {
            sum += t;
            benchmark::DoNotOptimize(sum.count());
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

template <class A, class B, class MakeA, class MakeB>
void compareAdjacent(benchmark::State& state, MakeA makeA, MakeB makeB) {
    const auto a = times<A>(makeA);
    const auto b = times<B>(makeB);
    for (auto _ : state) {
        for (size_t i = 0; i < Count; ++i) benchmark::DoNotOptimize(a[i] < b[Count - 1 - i]);
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

void compareEqualRateDtTime(benchmark::State& state) {
    auto film = [](int64_t c) { return Qn::DtTime(c, 24, 1); };
    compareAdjacent<Qn::DtTime, Qn::DtTime>(state, film, film);
}

void compareEqualRateChrono(benchmark::State& state) {
    auto film = [](int64_t c) { return Film(c); };
    compareAdjacent<Film, Film>(state, film, film);
}

void compareMixedRateDtTime(benchmark::State& state) {
    compareAdjacent<Qn::DtTime, Qn::DtTime>(
        state, [](int64_t c) { return Qn::DtTime(c, 24, 1); },
        [](int64_t c) { return Qn::DtTime(c, 25, 1); });
}

void compareMixedRateChrono(benchmark::State& state) {
    compareAdjacent<Film, Pal>(
        state, [](int64_t c) { return Film(c); }, [](int64_t c) { return Pal(c); });
}

// 24 frames per second to NTSC's 30000/1001, toward zero and to nearest, by
// convert and by convertExact.
template <class Style>
void convertDtTimeIndex(benchmark::State& state, Style style) {
    const Qn::Rational film(24, 1), ntsc(30000, 1001);
    for (auto _ : state) {
        for (int64_t c : counts()) {
            if constexpr (std::is_same_v<Style, Qn::DtRounding>) {
                benchmark::DoNotOptimize(Qn::DtTimeIndex(c).convertExact(film, ntsc, style));
            } else {
                benchmark::DoNotOptimize(Qn::DtTimeIndex(c).convert(film, ntsc, style));
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

// Frames of up to 9 hours at 29.97 drop-frame (the counts made positive)
// and their labels.
const Qn::DtTimecode& ntscTimecode() {
    static const Qn::DtTimecode timecode(Qn::Rational(30000, 1001));
    return timecode;
}
int64_t frameOf(int64_t count) { return count < 0 ? -count : count; }
const std::vector<std::string>& labels() {
    static const std::vector<std::string> values = [] {
        std::vector<std::string> v;
        for (int64_t c : counts())
            v.push_back(ntscTimecode().toText(Qn::DtTime(frameOf(c), 30000, 1001)));
        return v;
    }();
    return values;
}

void timecodeToTextDtTimecode(benchmark::State& state) {
    const Qn::Rational ntsc(30000, 1001);
    char text[Qn::DtTimecode::TextSize];
    for (auto _ : state) {
        for (int64_t c : counts()) {
            benchmark::DoNotOptimize(ntscTimecode().toText(Qn::DtTime(frameOf(c), ntsc), text));
            benchmark::ClobberMemory();
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

void timecodeFromTextDtTimecode(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string& label : labels()) {
            benchmark::DoNotOptimize(ntscTimecode().fromText(label));
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

#if defined(QN_HAVE_AVUTIL)
void timecodeToTextAvutil(benchmark::State& state) {
    AVTimecode timecode;
    av_timecode_init(&timecode, {30000, 1001}, AV_TIMECODE_FLAG_DROPFRAME, 0, nullptr);
    char text[AV_TIMECODE_STR_SIZE];
    for (auto _ : state) {
        for (int64_t c : counts()) {
            benchmark::DoNotOptimize(
                av_timecode_make_string(&timecode, text, static_cast<int>(frameOf(c))));
            benchmark::ClobberMemory();
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

void timecodeFromTextAvutil(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string& label : labels()) {
            AVTimecode timecode;
            benchmark::DoNotOptimize(
                av_timecode_init_from_string(&timecode, {30000, 1001}, label.c_str(), nullptr));
            benchmark::DoNotOptimize(timecode.start);
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}

void convertAvRescaleRnd(benchmark::State& state, AVRounding rounding) {
    for (auto _ : state) {
        for (int64_t c : counts()) {
            benchmark::DoNotOptimize(av_rescale_rnd(c, 1 * 30000, 1001 * 24, rounding));
        }
    }
    state.SetItemsProcessed(state.iterations() * Count);
}
#endif

}  // namespace

BENCHMARK(clockHwCounterTimeStamp);
BENCHMARK(clockGettimeMonotonic);
BENCHMARK(clockSteadyClockNow);
BENCHMARK(addEqualRateDtTime);
BENCHMARK(addEqualRateChrono);
BENCHMARK(compareEqualRateDtTime);
BENCHMARK(compareEqualRateChrono);
BENCHMARK(compareMixedRateDtTime);
BENCHMARK(compareMixedRateChrono);
BENCHMARK_CAPTURE(convertDtTimeIndex, towardZero, std::round_toward_zero);
BENCHMARK_CAPTURE(convertDtTimeIndex, nearest, std::round_to_nearest);
BENCHMARK_CAPTURE(convertDtTimeIndex, exactTowardZero, Qn::DtRounding::TowardZero);
BENCHMARK_CAPTURE(convertDtTimeIndex, exactHalfUp, Qn::DtRounding::HalfUp);
BENCHMARK(timecodeToTextDtTimecode);
BENCHMARK(timecodeFromTextDtTimecode);
#if defined(QN_HAVE_AVUTIL)
BENCHMARK_CAPTURE(convertAvRescaleRnd, towardZero, AV_ROUND_ZERO);
BENCHMARK_CAPTURE(convertAvRescaleRnd, nearest, AV_ROUND_NEAR_INF);
BENCHMARK(timecodeToTextAvutil);
BENCHMARK(timecodeFromTextAvutil);
#endif

BENCHMARK_MAIN();
