// The message logger against spdlog's asynchronous logger, side by side:
//  - producer cost of one message (a short text and an integer), timed message
//    by message, as median and 99th percentile, with 1 and 2 producer threads;
//    messages come in bursts that fit both queues, and the producer waits for
//    the reader to drain between bursts, so that neither side overflows or
//    blocks;
//  - the cost of a message at a disabled level;
//  - reader throughput: lines written to a file per second, from queues that
//    were filled beforehand.
// The logger takes its log directory from S2M_TEST_DIR at start-up, so the
// program makes a fresh temporary directory, starts itself again with it and
// removes it at the end (a directory given in S2M_TEST_DIR is kept).
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <base/lgLog.h>
#include <base/lgMajorGroup.h>
#include <base/lgMessage.h>
#include <base/lgReader.h>
#include <base/lgReaderThread.h>
#include <base/lgThreadQueues.h>

#if defined(QN_HAVE_SPDLOG)
#include <spdlog/async.h>
#include <spdlog/async_logger.h>
#include <spdlog/sinks/basic_file_sink.h>
#endif

namespace {

constexpr int Burst = 256;
constexpr int Bursts = 40;

std::string logDirectory() { return std::getenv("S2M_TEST_DIR"); }

const Qn::LgMinorGroup& group() {
    static const Qn::LgMinorGroup minor(Qn::LgMajorGroup::getInstanceForName("Bench"), "Bench");
    return minor;
}

using Clock = std::chrono::steady_clock;

// The median cost of reading the clock twice, taken off every sample.
int64_t clockOverhead() {
    static const int64_t overhead = [] {
        std::vector<int64_t> samples(10000);
        for (int64_t& sample : samples) {
            const auto t0 = Clock::now();
            sample = (Clock::now() - t0).count();
        }
        std::nth_element(samples.begin(), samples.begin() + samples.size() / 2, samples.end());
        return samples[samples.size() / 2];
    }();
    return overhead;
}

// Times every message of the bursts one by one; waits for the reader between
// bursts.
template <class LogOne, class Drained>
void timeMessages(std::vector<int64_t>& costs, LogOne logOne, Drained drained) {
    for (int burst = 0; burst < Bursts; ++burst) {
        for (int i = 0; i < Burst; ++i) {
            const auto t0 = Clock::now();
            logOne(i);
            costs.push_back((Clock::now() - t0).count() - clockOverhead());
        }
        while (!drained()) std::this_thread::sleep_for(std::chrono::microseconds(50));
    }
}

// Runs the producers, each on a thread of its own, and reports the median and
// 99th percentile of all their messages.
template <class Producer>
void runProducers(benchmark::State& state, Producer producer) {
    const int producers = static_cast<int>(state.range(0));
    std::vector<std::vector<int64_t>> costs(producers);
    for (auto _ : state) {
        std::vector<std::thread> threads;
        for (int p = 0; p < producers; ++p) threads.emplace_back(producer, std::ref(costs[p]));
        for (std::thread& thread : threads) thread.join();
    }
    std::vector<int64_t> all;
    for (const auto& c : costs) all.insert(all.end(), c.begin(), c.end());
    std::sort(all.begin(), all.end());
    state.counters["median_ns"] = double(all[all.size() / 2]);
    state.counters["p99_ns"] = double(all[all.size() * 99 / 100]);
    state.SetItemsProcessed(static_cast<int64_t>(all.size()));
}

void producerQnLog(benchmark::State& state) {
    Qn::LgReaderThread reader;
    reader.start();
    runProducers(state, [](std::vector<int64_t>& costs) {
        Qn::LgQueue& queue = Qn::LgLog::getQueue();
        timeMessages(
            costs,
            [](int i) { QN_LOG(group(), Qn::LgTypes::Warning) << "request served in " << i; },
            [&queue] { return queue.isEmpty(); });
    });
    reader.stop();
}

void disabledQnLog(benchmark::State& state) {
    int i = 0;
    for (auto _ : state) {
        QN_LOG(group(), Qn::LgTypes::Tracing) << "request served in " << i;
        benchmark::DoNotOptimize(++i);
    }
}

// Two queues of 1000 messages each, merged into the event file per iteration.
void readerQnLog(benchmark::State& state) {
    constexpr int PerQueue = 1000;
    Qn::LgQueue first(1), second(2);
    const auto registry = Qn::LgLog::getRegistry();
    registry->registerQueue(&first);
    registry->registerQueue(&second);
    Qn::LgReader reader;
    for (auto _ : state) {
        state.PauseTiming();
        for (int i = 0; i < PerQueue; ++i) {
            for (Qn::LgQueue* queue : {&first, &second}) {
                queue->reserveEntry(Qn::LgTypes::Warning);
                queue->getStream() << "request served in " << i;
                queue->addEntry();
            }
        }
        state.ResumeTiming();
        reader.flushAll();
    }
    registry->deregisterQueue(&first);
    registry->deregisterQueue(&second);
    state.SetItemsProcessed(state.iterations() * 2 * PerQueue);
}

#if defined(QN_HAVE_SPDLOG)

std::shared_ptr<spdlog::sinks::basic_file_sink_mt> spdlogSink() {
    static const auto sink =
        std::make_shared<spdlog::sinks::basic_file_sink_mt>(logDirectory() + "/spdlog.log", true);
    return sink;
}

void producerSpdlog(benchmark::State& state) {
    const auto pool = std::make_shared<spdlog::details::thread_pool>(8192, 1);
    const auto logger = std::make_shared<spdlog::async_logger>("bench", spdlogSink(), pool);
    runProducers(state, [&](std::vector<int64_t>& costs) {
        timeMessages(
            costs, [&logger](int i) { logger->warn("request served in {}", i); },
            [&pool] { return pool->queue_size() == 0; });
    });
}

void disabledSpdlog(benchmark::State& state) {
    const auto pool = std::make_shared<spdlog::details::thread_pool>(8192, 1);
    const auto logger = std::make_shared<spdlog::async_logger>("bench", spdlogSink(), pool);
    logger->set_level(spdlog::level::warn);
    int i = 0;
    for (auto _ : state) {
        logger->trace("request served in {}", i);
        benchmark::DoNotOptimize(++i);
    }
}

// 20000 messages queued while the worker waits at its start; timed from its
// release until it has written them all and the file is flushed.
void readerSpdlog(benchmark::State& state) {
    constexpr int Messages = 20000;
    for (auto _ : state) {
        state.PauseTiming();
        std::atomic<bool> go{false};
        auto pool = std::make_shared<spdlog::details::thread_pool>(Messages + 16, 1, [&go] {
            while (!go.load()) std::this_thread::yield();
        });
        const auto logger = std::make_shared<spdlog::async_logger>("bench", spdlogSink(), pool);
        for (int i = 0; i < Messages; ++i) logger->warn("request served in {}", i);
        state.ResumeTiming();
        go = true;
        pool.reset();  // the pool drains its queue before its thread ends
        spdlogSink()->flush();
    }
    state.SetItemsProcessed(state.iterations() * Messages);
}

#endif

}  // namespace

BENCHMARK(producerQnLog)->Arg(1)->Arg(2)->Iterations(1)->UseRealTime();
BENCHMARK(disabledQnLog);
BENCHMARK(readerQnLog)->UseRealTime();
#if defined(QN_HAVE_SPDLOG)
BENCHMARK(producerSpdlog)->Arg(1)->Arg(2)->Iterations(1)->UseRealTime();
BENCHMARK(disabledSpdlog);
BENCHMARK(readerSpdlog)->UseRealTime();
#endif

int main(int argc, char** argv) {
    if (!std::getenv("S2M_TEST_DIR")) {
        char pattern[] = "/tmp/qn-loggerBench-XXXXXX";
        if (!mkdtemp(pattern)) return 1;
        setenv("S2M_TEST_DIR", pattern, 1);
        setenv("QN_LOGGERBENCH_OWN_DIR", "1", 1);
        execv("/proc/self/exe", argv);
        return 1;
    }
    Qn::LgLog::init();
    Qn::LgThreadQueues::install();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    Qn::LgLog::destroy();
    if (std::getenv("QN_LOGGERBENCH_OWN_DIR")) std::filesystem::remove_all(logDirectory());
    return 0;
}
