#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include <base/lgLog.h>
#include <base/lgReaderThread.h>
#include <base/lgThreadQueues.h>

namespace {

using Qn::LgLog;
using Qn::LgQueue;

// A producer that asks for room before every message loses none while the
// reader runs, though it writes faster than the reader drains; once the reader
// has stopped, waiting returns at once.
TEST(LgReaderThread, ObserverMakesProducersWaitForRoom) {
    const auto previousRegistry = LgLog::getRegistry();
    const auto previousFunction = LgLog::setQueueFunction(&Qn::LgThreadQueues::getQueue);
    Qn::LgReaderThread reader;
    Qn::LgThreadQueues::install(reader.getObserver());
    EXPECT_FALSE(LgLog::isLoggerActive());
    reader.start();
    EXPECT_TRUE(LgLog::isLoggerActive());
    const std::string text(2000, 't');
    int lost = 0;
    unsigned long threadId = 0;
    std::thread producer([&] {
        LgQueue& q = LgLog::getQueue();
        threadId = q.getThreadId();
        for (int i = 0; i < 3000; ++i) {
            q.waitForSpace(static_cast<int>(text.size()));
            if (!q.reserveEntry(Qn::LgTypes::Warning)) {
                ++lost;
                continue;
            }
            q << text.c_str();
            q.addEntry();
        }
    });
    producer.join();
    EXPECT_EQ(lost, 0);
    EXPECT_NE(threadId, Qn::LgThreadQueues::getCurrentThreadId());
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
            q.reserveEntry(Qn::LgTypes::Warning);
            q << "x";
            q.addEntry();
        }
        q.waitForSpace(1);  // the reader is gone: no waiting
        fullAfterWaiting = q.isFull();
        Qn::LgThreadQueues::releaseQueue();
    });
    filler.join();
    EXPECT_TRUE(fullAfterWaiting);
    reader.start();
    reader.stop();  // drains the released queue and destroys it
    EXPECT_TRUE(LgLog::getRegistry()->getQueueList().empty());
    LgLog::setQueueFunction(previousFunction);
    LgLog::setRegistry(previousRegistry);
}

}  // namespace
