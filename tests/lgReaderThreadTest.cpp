// Producers on threads of their own, each through its own queue, and a reader
// that drains them into the log files: nothing is lost, nothing reordered.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <fstream>
#include <map>
#include <mutex>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include <base/lgLog.h>
#include <base/lgMajorGroup.h>
#include <base/lgMessage.h>
#include <base/lgReader.h>
#include <base/lgReaderThread.h>
#include <base/lgThreadQueues.h>
#include <support/tempDirFixture.h>

namespace {

using Qn::LgLog;
using Qn::LgQueue;
using Qn::LgTypes;

// Waits until every producer has arrived (std::latch loses wake-ups with some
// runtimes).
class Gate {
  public:
    explicit Gate(int count) : _left(count) {}
    void arriveAndWait() {
        std::unique_lock<std::mutex> hold(_mutex);
        if (--_left == 0) _open.notify_all();
        _open.wait(hold, [this] { return _left == 0; });
    }

  private:
    std::mutex _mutex;
    std::condition_variable _open;
    int _left;
};

// Starts the process's logger with its files in the test's directory, and
// per-thread queues; stops it and restores the queue function afterwards.
class LgReaderThreadTest : public QnTest::TempDirFixture {
  protected:
    void SetUp() override {
        TempDirFixture::SetUp();
        _previousFunction = LgLog::setQueueFunction(&Qn::LgThreadQueues::getQueue);
    }
    void start(const char* warning = nullptr) {
        _logs = native("logs").string();
        _warning = warning ? warning : "";
        LgLog::init(Qn::LgConfig::read([this](const char* name) -> const char* {
            if (std::strcmp(name, "S2M_TEST_DIR") == 0) return _logs.c_str();
            return std::strcmp(name, "QN_LOG_WARNING") == 0 ? _warning.c_str() : nullptr;
        }));
    }
    void TearDown() override {
        LgLog::destroy();
        Qn::LgThreadQueues::install();  // drops the reader's observer
        LgLog::setQueueFunction(_previousFunction);
        TempDirFixture::TearDown();
    }

  private:
    std::string _logs, _warning;
    LgLog::QueueFunction _previousFunction = nullptr;
};

struct Variant {
    const char* name;
    int producers;
    int messages;
    int readerIdleMicroseconds;
    bool slowReader;
};

// Per producer: its lines in order plus its overflow counts.
struct ProducerLines {
    uint64_t lines = 0;
    uint64_t lost = 0;
    bool ordered = true;
};

// Counts the "p<k> <i>" lines of each producer and the overflow entries of its
// thread; every other line must be a banner line.
std::map<int, ProducerLines> countProducerLines(const std::string& file,
                                                const std::map<unsigned long, int>& producerOf) {
    static const std::regex message(
        R"(\d{10} \d{10} \(0x([0-9a-f]{8})\) )"
        R"((Warning: p(\d+) (\d+)|Informational: Event overflow \[(\d+)\]))");
    static const std::regex banner(
        R"(===== (Message Logger (Startup|Stopped) =====|Started on .{24}|Clock Frequency: .*)|)");
    std::map<int, ProducerLines> counts;
    std::map<int, long long> last;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        std::smatch m;
        if (!std::regex_match(line, m, message)) {
            EXPECT_TRUE(std::regex_match(line, banner)) << "broken line: " << line;
        } else if (m[5].matched) {
            const auto thread = producerOf.find(std::stoul(m[1].str(), nullptr, 16));
            EXPECT_NE(thread, producerOf.end()) << line;
            if (thread != producerOf.end()) counts[thread->second].lost += std::stoull(m[5].str());
        } else {
            const int k = std::stoi(m[3].str());
            const long long i = std::stoll(m[4].str());
            counts[k].ordered = counts[k].ordered && i > (last.count(k) ? last[k] : -1);
            last[k] = i;
            ++counts[k].lines;
        }
    }
    return counts;
}

// A reader that pauses every 64 lines, so that the producers overflow.
void slowReader(const std::atomic<bool>& stop) {
    Qn::LgReader reader;
    for (int n = 1; !stop.load(); ++n) {
        if (!reader.flushEarliest()) std::this_thread::yield();
        if (n % 64 == 0) std::this_thread::sleep_for(std::chrono::microseconds(300));
    }
    reader.flushAll();
}

// Every message is written in its producer's order or counted as lost; a
// reader that sleeps ten seconds between looks still writes everything
// committed before stop() returns.
TEST_F(LgReaderThreadTest, ProducersThroughTheirOwnQueuesLoseNothing) {
    const Variant variants[] = {{"fast", 4, 20000, 1000, false},
                                {"slow", 4, 20000, 1000, true},
                                {"stop drains", 3, 300, 10000000, false}};
    for (const Variant& variant : variants) {
        SCOPED_TRACE(variant.name);
        start();
        Qn::LgReaderThread reader(variant.readerIdleMicroseconds);
        Qn::LgThreadQueues::install(reader.getObserver());
        const Qn::LgMinorGroup group(Qn::LgMajorGroup::getInstanceForName("Test"), "Test");
        std::atomic<bool> stop{false};
        std::thread slow;
        if (variant.slowReader) {
            slow = std::thread(slowReader, std::cref(stop));
        } else {
            reader.start();
        }
        std::vector<unsigned long> threadIds(variant.producers);
        // The producers live until all are done, so their thread ids differ.
        Gate done(variant.producers);
        std::vector<std::thread> producers;
        for (int k = 0; k < variant.producers; ++k) {
            producers.emplace_back([k, &variant, &threadIds, &done, &group] {
                threadIds[k] = LgLog::getQueue().getThreadId();
                for (int i = 0; i < variant.messages; ++i) {
                    QN_LOG(group, LgTypes::Warning) << 'p' << k << ' ' << i;
                }
                done.arriveAndWait();
                Qn::LgThreadQueues::releaseQueue();
            });
        }
        for (std::thread& producer : producers) producer.join();
        stop = true;
        if (slow.joinable()) slow.join();
        reader.stop();
        EXPECT_TRUE(LgLog::getRegistry()->getQueueList().empty());
        LgLog::destroy();

        std::map<unsigned long, int> producerOf;
        for (int k = 0; k < variant.producers; ++k) producerOf[threadIds[k]] = k;
        const auto counts = countProducerLines(native("logs/events.log").string(), producerOf);
        ASSERT_EQ(counts.size(), size_t(variant.producers));
        uint64_t lost = 0;
        for (const auto& [k, count] : counts) {
            SCOPED_TRACE(k);
            EXPECT_EQ(count.lines + count.lost, uint64_t(variant.messages));
            EXPECT_TRUE(count.ordered);
            lost += count.lost;
        }
        if (variant.slowReader) {
            EXPECT_GT(lost, 0u);
        } else if (uint32_t(variant.messages) < LgQueue::getMaxSize()) {
            EXPECT_EQ(lost, 0u);
        }
    }
}

// A producer that asks for room before every message loses none while the
// reader runs, though it writes faster than the reader drains; once the reader
// has stopped, waiting returns at once.
TEST_F(LgReaderThreadTest, ObserverMakesProducersWaitForRoom) {
    start("--");
    Qn::LgReaderThread reader;
    Qn::LgThreadQueues::install(reader.getObserver());
    EXPECT_FALSE(LgLog::isLoggerActive());
    reader.start();
    EXPECT_TRUE(LgLog::isLoggerActive());
    const std::string text(2000, 't');
    int lost = 0;
    std::thread producer([&] {
        LgQueue& q = LgLog::getQueue();
        for (int i = 0; i < 3000; ++i) {
            q.waitForSpace(static_cast<int>(text.size()));
            if (!q.reserveEntry(LgTypes::Warning)) {
                ++lost;
                continue;
            }
            q.getStream() << text.c_str();
            q.addEntry();
        }
    });
    producer.join();
    EXPECT_EQ(lost, 0);
    // The exited producer's queue is drained and destroyed (its end may be seen
    // a little after the join on some platforms).
    for (int i = 0; i < 500 && !LgLog::getRegistry()->getQueueList().empty(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_TRUE(LgLog::getRegistry()->getQueueList().empty());
    reader.stop();
    EXPECT_FALSE(LgLog::isLoggerActive());

    bool fullAfterWaiting = false;
    std::thread filler([&] {
        LgQueue& q = LgLog::getQueue();
        for (uint32_t i = 0; i < LgQueue::getMaxSize() - 1; ++i) {
            q.reserveEntry(LgTypes::Warning);
            q.getStream() << "x";
            q.addEntry();
        }
        q.waitForSpace(1);  // the reader is gone: no waiting
        fullAfterWaiting = q.isEntryRingFull();
        Qn::LgThreadQueues::releaseQueue();
    });
    filler.join();
    EXPECT_TRUE(fullAfterWaiting);
    reader.start();
    reader.stop();  // drains the released queue and destroys it
    EXPECT_TRUE(LgLog::getRegistry()->getQueueList().empty());
}

}  // namespace
