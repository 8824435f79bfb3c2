#include <gtest/gtest.h>

#include <atomic>
#include <cfloat>
#include <climits>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <base/exInternalError.h>
#include <base/lgQueue.h>

namespace {

using Qn::LgQueue;
using Qn::LgStream;
using Qn::LgTypes;

// Takes every entry out of the queue: the text of a message, "overflow <n>" for
// an overflow entry.
std::vector<std::string> drain(LgQueue& q) {
    std::vector<std::string> out;
    std::vector<char> text(LgStream::BufSize);
    while (!q.isEmpty()) {
        if (q.readEntry().isOverflowEntry()) {
            out.push_back("overflow " + std::to_string(q.takeOverflowCount()));
        } else {
            q.getStream() >> text.data();
            out.emplace_back(text.data());
        }
        q.removeEntry();
    }
    return out;
}

bool logText(LgQueue& q, const std::string& text, LgTypes::Level level = LgTypes::Warning) {
    if (!q.reserveEntry(level)) return false;
    q.getStream() << text.c_str();
    q.addEntry();
    return true;
}

// Expects the statement to fail the assertion whose text is given.
#define EXPECT_ASSERTION(statement, text)                                     \
    try {                                                                     \
        statement;                                                            \
        ADD_FAILURE() << "no assertion from " #statement;                     \
    } catch (const Qn::ExInternalError& e) {                                  \
        EXPECT_STREQ(e.what(), "Assertion '" text "' failed.") << #statement; \
    }

TEST(LgQueue, OverflowEntryCountsEveryLostMessage) {
    LgQueue q(7);
    for (int round = 0; round < 2; ++round) {
        SCOPED_TRACE(round);
        for (uint32_t i = 0; i < LgQueue::getMaxSize() - 1; ++i) {
            ASSERT_TRUE(logText(q, std::to_string(i)));
        }
        EXPECT_TRUE(q.isEntryRingFull());
        const int lost = round == 0 ? 3 : 1;
        for (int i = 0; i < lost; ++i) EXPECT_FALSE(logText(q, "lost"));
        const std::vector<std::string> lines = drain(q);
        ASSERT_EQ(lines.size(), LgQueue::getMaxSize());
        EXPECT_EQ(lines.front(), "0");
        EXPECT_EQ(lines[1021], "1021");
        EXPECT_EQ(lines.back(), "overflow " + std::to_string(lost));
        EXPECT_TRUE(logText(q, "again"));
        EXPECT_EQ(drain(q), std::vector<std::string>{"again"});
    }
}

TEST(LgQueue, StreamCutsLongTextAndDropsTheRestOfAFullRing) {
    LgQueue q(1);
    const std::string big(32759, 'b');
    ASSERT_TRUE(logText(q, big));
    // Six characters are left: the long text becomes "#", text that fits
    // follows it, and once the ring is full the rest of the message is dropped.
    ASSERT_TRUE(q.reserveEntry(LgTypes::Error));
    EXPECT_EQ(q.getStream().getNumCharacters(), 6u);
    q.getStream() << "abcdefghij"
                  << "xyz"
                  << "more" << '!' << "?" << 42;
    EXPECT_TRUE(q.getStream().hasOverflowed());
    EXPECT_TRUE(q.getStream().isFull());
    q.addEntry();
    EXPECT_FALSE(logText(q, "lost"));
    EXPECT_EQ(q.getStream().getNextSize(), big.size());
    const std::vector<std::string> lines = drain(q);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], big);
    EXPECT_EQ(lines[1], "#xyz#!");
    EXPECT_EQ(lines[2], "overflow 1");
    EXPECT_FALSE(q.getStream().hasOverflowed());
    // The terminator of the last text sat on the last free byte; the ring is
    // whole again once read.
    EXPECT_EQ(q.getStream().getNumCharacters(), LgStream::getMaxSize());
    ASSERT_TRUE(logText(q, std::string(LgStream::getMaxSize(), 'w')));
    EXPECT_EQ(drain(q), std::vector<std::string>{std::string(LgStream::getMaxSize(), 'w')});
}

TEST(LgQueue, BothRingsWrapWithoutLoss) {
    LgQueue q(2);
    std::vector<std::string> written;
    std::vector<std::string> read;
    for (int i = 0; i < 5000; ++i) {
        written.push_back("message " + std::to_string(i) + std::string(i % 61, 'x'));
        ASSERT_TRUE(logText(q, written.back()));
        if (i % 700 == 699) {
            for (std::string& line : drain(q)) read.push_back(std::move(line));
        }
    }
    for (std::string& line : drain(q)) read.push_back(std::move(line));
    EXPECT_EQ(read, written);
}

TEST(LgQueue, EntriesWithoutTextAndSuppressedReservationsLeaveNoTrace) {
    LgQueue q(3);
    ASSERT_TRUE(q.reserveEntry(LgTypes::Warning));
    q.addEntry();
    q.addEntry();  // without a reservation
    EXPECT_TRUE(q.isEmpty());
    {
        const LgQueue::SuppressGuard outer(q);
        {
            const LgQueue::SuppressGuard inner(q);
            EXPECT_FALSE(q.reserveEntry(LgTypes::Error));
        }
        EXPECT_FALSE(q.reserveEntry(LgTypes::Error));
    }
    EXPECT_TRUE(q.isEmpty());
    // An empty text is a message of its own.
    ASSERT_TRUE(logText(q, ""));
    ASSERT_TRUE(logText(q, "after"));
    EXPECT_EQ(drain(q), (std::vector<std::string>{"", "after"}));
}

TEST(LgQueue, EntryKindsAndTheirChecks) {
    LgQueue::Entry e;
    EXPECT_FALSE(e.isOverflowEntry());
    EXPECT_EQ(e.getLevel(), LgTypes::InternalError);
    EXPECT_EQ(e.getTimeStamp(), 0u);
    EXPECT_ASSERTION(e.getOverflowCount(), "_oflow");
    e.setOverflowEntry(true);
    EXPECT_TRUE(e.incOverflowCount());
    e.setOverflowEntry(true);
    EXPECT_EQ(e.getOverflowCount(), 2u);
    EXPECT_ASSERTION(e.setLevel(LgTypes::Error), "!_oflow");
    EXPECT_EQ(e.claimOverflowCount(), 2u);
    EXPECT_FALSE(e.incOverflowCount());
    EXPECT_EQ(e.getOverflowCount(), 2u);
    e.setOverflowEntry(false);
    EXPECT_EQ(e.getLevel(), LgTypes::Tracing);
}

TEST(LgQueue, NumbersAreFormattedAsThePrintFunctionDoes) {
    LgStream s;
    std::vector<char> text(LgStream::BufSize);
    auto check = [&s, &text](auto value, const char* format) {
        char expected[512];
        std::snprintf(expected, sizeof expected, format, value);
        s << value << Qn::ends;
        s >> text.data();
        EXPECT_STREQ(text.data(), expected) << format;
    };
    check(short{-32768}, "%hd");
    check(static_cast<unsigned short>(65535), "%hu");
    check(INT_MIN, "%d");
    check(UINT_MAX, "%u");
    check(LONG_MIN, "%ld");
    check(ULONG_MAX, "%lu");
    check(LLONG_MIN, "%lld");
    check(ULLONG_MAX, "%llu");
    check(-2.0 / 3, "%f");
    check(DBL_MAX, "%f");
    check(3.25L, "%Lf");
    check(static_cast<const void*>(&s), "%p");
    s << 1.5f << ' ' << true << false << static_cast<signed char>('A')
      << static_cast<unsigned char>('B') << '\0' << static_cast<const char*>(nullptr) << Qn::ends;
    s >> text.data();
    EXPECT_STREQ(text.data(), "1.500000 truefalseAB(null)");
    EXPECT_EQ(s.getNextSize(), 0u);
}

class CountingObserver : public LgQueue::Observer {
  public:
    void entryAdded(LgQueue&) override { ++added; }
    void entryRemoved(LgQueue&) override { ++removed; }
    void waitForSpace(LgQueue&, int size) override { waited = size; }
    int added = 0, removed = 0, waited = 0;
};

TEST(LgQueue, ObserverHearsTrafficAndContractViolationsAreReported) {
    auto q = std::make_unique<LgQueue>(5);
    q->waitForSpace(10);  // nothing without an observer
    auto observer = std::make_shared<CountingObserver>();
    EXPECT_EQ(q->changeObserver(observer), nullptr);
    EXPECT_ASSERTION(q->changeObserver(observer), "_observer.isNull()");
    ASSERT_TRUE(logText(*q, "one"));
    q->waitForSpace(10);
    EXPECT_EQ(observer->added, 1);
    EXPECT_EQ(observer->waited, 10);
    // unique_ptr cannot pass on the destructor's exception: delete directly.
    EXPECT_ASSERTION(delete q.release(), "_beg == _end");
    q = std::make_unique<LgQueue>(5);
    EXPECT_ASSERTION(q->readEntry(), "_beg != _end");
    EXPECT_ASSERTION(q->removeEntry(), "_beg != _end");
    EXPECT_ASSERTION(q->reserveEntry(static_cast<LgTypes::Level>(7)), "l < NUM_LEVELS");
    EXPECT_EQ(q->getThreadId(), 5u);
    EXPECT_TRUE(q->isCreatorAlive());
    q->creatorExit();
    EXPECT_FALSE(q->isCreatorAlive());
}

// One producer against one reader: every message is either read, in order, or
// counted in an overflow entry. A reader that pauses fills the
// entry ring; long messages fill the text ring while few entries are queued,
// so that the reader often takes the newest overflow entry while the producer
// is still counting into it.
struct Traffic {
    uint64_t messages;
    size_t payload;
    bool pausingReader;
};

void checkNothingLost(const Traffic& traffic) {
    LgQueue q(6);
    const std::string payload(traffic.payload, 'p');
    std::atomic<bool> done{false};
    uint64_t lines = 0, counted = 0, overflowEntries = 0;
    bool ordered = true;
    std::thread reader([&] {
        std::vector<char> text(LgStream::BufSize);
        long long last = -1;
        for (uint64_t n = 0;; ++n) {
            const bool finished = done.load();
            if (q.isEmpty()) {
                if (finished) break;
                std::this_thread::yield();
                continue;
            }
            if (q.readEntry().isOverflowEntry()) {
                counted += q.takeOverflowCount();
                ++overflowEntries;
            } else {
                q.getStream() >> text.data();
                // A message cut at its first text ("#") has lost its number.
                if (text[0] != '#') {
                    const long long value = std::stoll(text.data());
                    ordered = ordered && value > last;
                    last = value;
                }
                ++lines;
            }
            q.removeEntry();
            if (traffic.pausingReader && n % 256 == 0) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        }
    });
    for (uint64_t i = 0; i < traffic.messages; ++i) {
        if (q.reserveEntry(LgTypes::Informational)) {
            q.getStream() << static_cast<unsigned long long>(i) << ' ' << payload.c_str();
            q.addEntry();
        }
    }
    done = true;
    reader.join();
    EXPECT_EQ(lines + counted, traffic.messages);
    EXPECT_TRUE(ordered);
    if (traffic.pausingReader) {
        EXPECT_GT(overflowEntries, 0u);
    }
}

TEST(LgQueue, ConcurrentReaderSeesEveryMessageOrItsCount) {
    {
        SCOPED_TRACE("entry ring full");
        checkNothingLost({60000, 8, true});
    }
    {
        SCOPED_TRACE("text ring full");
        checkNothingLost({20000, 3000, false});
    }
}

}  // namespace
