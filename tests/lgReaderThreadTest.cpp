// Producers on threads of their own, each through its own queue, and a reader
// that drains them into the log files: nothing is lost, nothing reordered.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <thread>
#include <utility>
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

// Starts the process's logger with its files in the test's directory, and
// per-thread queues that wait for room through the reader's observer; stops it
// and restores the queue function afterwards.
class LgReaderThreadTest : public QnTest::TempDirFixture {
  protected:
    void start(const Qn::LgReaderThread& reader, bool warnings = true) {
        Qn::LgConfig config;
        config.logDirectory = native("logs").string();
        config.timeStamps = false;
        if (!warnings) config.levels[LgTypes::Warning] = Qn::LgConfig::Destination();
        LgLog::init(config);
        Qn::LgThreadQueues::install(reader.getObserver());
    }
    void TearDown() override {
        LgLog::destroy();
        Qn::LgThreadQueues::install();  // drops the reader's observer
        LgLog::setQueueFunction(_previousFunction);
        TempDirFixture::TearDown();
    }

  private:
    const LgLog::QueueFunction _previousFunction =
        LgLog::setQueueFunction(&Qn::LgThreadQueues::getQueue);
};

struct Variant {
    const char* name;
    int producers;
    int messages;
    int readerIdleMicroseconds;
    bool slowReader;
};

// Reads the "p<k> <i>" lines of each producer, checking that they come in
// order, and the overflow entries; every other line must be a banner.
// Returns the number of lines and of the lost messages counted.
std::pair<uint64_t, uint64_t> countMessages(const std::string& file) {
    uint64_t lines = 0, lost = 0;
    std::map<int, long long> last;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        int k;
        long long i;
        unsigned long long count;
        if (std::sscanf(line.c_str(), "p%d %lld", &k, &i) == 2) {
            EXPECT_GT(i, last.count(k) ? last[k] : -1) << line;
            last[k] = i;
            ++lines;
        } else if (std::sscanf(line.c_str(), "Event overflow [%llu]", &count) == 1) {
            lost += count;
        } else {
            EXPECT_TRUE(line == "===== Message Logger Startup =====" ||
                        line == "===== Message Logger Stopped =====")
                << "broken line: " << line;
        }
    }
    return {lines, lost};
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
        Qn::LgReaderThread reader(variant.readerIdleMicroseconds);
        start(reader);
        const Qn::LgMinorGroup group(Qn::LgMajorGroup::getInstanceForName("Test"), "Test");
        std::atomic<bool> stop{false};
        std::thread slow;
        if (variant.slowReader) {
            slow = std::thread(slowReader, std::cref(stop));
        } else {
            reader.start();
        }
        std::vector<std::thread> producers;
        for (int k = 0; k < variant.producers; ++k) {
            producers.emplace_back([k, &variant, &group] {
                for (int i = 0; i < variant.messages; ++i) {
                    QN_LOG(group, LgTypes::Warning) << 'p' << k << ' ' << i;
                }
                Qn::LgThreadQueues::releaseQueue();
            });
        }
        for (std::thread& producer : producers) producer.join();
        stop = true;
        if (slow.joinable()) slow.join();
        reader.stop();
        EXPECT_TRUE(LgLog::getRegistry()->getQueueList().empty());
        LgLog::destroy();

        const auto [lines, lost] = countMessages(native("logs/events.log").string());
        EXPECT_EQ(lines + lost, uint64_t(variant.producers) * variant.messages);
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
    Qn::LgReaderThread reader;
    start(reader, false);
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
