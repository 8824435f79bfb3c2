#include <gtest/gtest.h>

#include <atomic>
#include <cfloat>
#include <climits>
#include <cstdio>
#include <cstring>
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
    for (; !q.isEmpty(); q.removeEntry()) {
        if (q.readEntry().isOverflowEntry()) {
            out.push_back("overflow " + std::to_string(q.takeOverflowCount()));
        } else {
            q.getStream() >> text.data();
            out.emplace_back(text.data());
        }
    }
    return out;
}

bool logText(LgQueue& q, const std::string& text) {
    if (!q.reserveEntry(LgTypes::Warning)) return false;
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

// Round 0 loses three messages into one entry; after the reader has drained,
// round 1 starts a new overflow entry.
TEST(LgQueue, OverflowEntryCountsEveryLostMessage) {
    LgQueue q(7);
    for (int lost : {3, 1}) {
        SCOPED_TRACE(lost);
        for (uint32_t i = 0; i < LgQueue::getMaxSize() - 1; ++i) {
            ASSERT_TRUE(logText(q, std::to_string(i)));
        }
        EXPECT_TRUE(q.isEntryRingFull());
        for (int i = 0; i < lost; ++i) EXPECT_FALSE(logText(q, "lost"));
        const std::vector<std::string> lines = drain(q);
        ASSERT_EQ(lines.size(), LgQueue::getMaxSize());
        EXPECT_EQ(lines[1021], "1021");
        EXPECT_EQ(lines.back(), "overflow " + std::to_string(lost));
    }
}

TEST(LgQueue, StreamCutsLongTextAndDropsTheRestOfAFullRing) {
    LgQueue q(1);
    LgStream& s = q.getStream();
    const std::string big(32759, 'b');
    ASSERT_TRUE(logText(q, big));
    // Six characters are left: the long text becomes "#", text that fits
    // follows it, and once the ring is full the rest of the message is dropped.
    ASSERT_TRUE(q.reserveEntry(LgTypes::Error));
    EXPECT_EQ(s.getNumCharacters(), 6u);
    s << "abcdefghij"
      << "xyz"
      << "more" << '!' << "?" << 42;
    EXPECT_TRUE(s.hasOverflowed());
    EXPECT_TRUE(s.isFull());
    q.addEntry();
    EXPECT_FALSE(logText(q, "lost"));
    EXPECT_EQ(s.getNextSize(), big.size());
    EXPECT_EQ(drain(q), (std::vector<std::string>{big, "#xyz#!", "overflow 1"}));
    EXPECT_FALSE(s.hasOverflowed());
    // The terminator of the last text sat on the last free byte; the ring is
    // whole again once read.
    EXPECT_EQ(s.getNumCharacters(), LgStream::getMaxSize());
    ASSERT_TRUE(logText(q, std::string(LgStream::getMaxSize(), 'w')));
    EXPECT_EQ(drain(q), std::vector<std::string>{std::string(LgStream::getMaxSize(), 'w')});
}

TEST(LgQueue, EntriesWithoutTextAndSuppressedReservationsLeaveNoTrace) {
    LgQueue q(3);
    ASSERT_TRUE(q.reserveEntry(LgTypes::Warning));
    q.addEntry();
    q.addEntry();  // without a reservation
    {
        const LgQueue::SuppressGuard outer(q);
        const LgQueue::SuppressGuard inner(q);
        EXPECT_FALSE(q.reserveEntry(LgTypes::Error));
    }
    EXPECT_TRUE(q.isEmpty());
    // An empty text is a message of its own.
    ASSERT_TRUE(logText(q, ""));
    ASSERT_TRUE(logText(q, "after"));
    EXPECT_EQ(drain(q), (std::vector<std::string>{"", "after"}));
}

// Integers of every width go through one conversion: its extremes are shown
// for two types; a double as wide as DBL_MAX must not be cut.
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
    explicit CountingObserver(bool traffic) : traffic(traffic) {}
    bool observesTraffic() const override { return traffic; }
    void entryAdded(LgQueue&) override { ++added; }
    void entryRemoved(LgQueue&) override { ++removed; }
    void waitForSpace(LgQueue&, int size) override { waited = size; }
    bool traffic;
    int added = 0, removed = 0, waited = 0;
};

TEST(LgQueue, ObserversEntryKindsAndContractViolations) {
    for (bool traffic : {true, false}) {
        LgQueue q(5);
        q.waitForSpace(10);  // nothing without an observer
        auto observer = std::make_shared<CountingObserver>(traffic);
        EXPECT_EQ(q.changeObserver(observer), nullptr);
        EXPECT_ASSERTION(q.changeObserver(observer), "_observer.isNull()");
        ASSERT_TRUE(logText(q, "one"));
        q.waitForSpace(10);
        drain(q);
        EXPECT_EQ(observer->added + observer->removed, traffic ? 2 : 0);
        EXPECT_EQ(observer->waited, 10);
    }
    auto q = std::make_unique<LgQueue>(5);
    ASSERT_TRUE(logText(*q, "one"));
    // unique_ptr cannot pass on the destructor's exception: delete directly.
    EXPECT_ASSERTION(delete q.release(), "_beg == _end");
    q = std::make_unique<LgQueue>(5);
    EXPECT_ASSERTION(q->readEntry(), "_beg != _end");
    EXPECT_ASSERTION(q->removeEntry(), "_beg != _end");
    EXPECT_ASSERTION(q->reserveEntry(static_cast<LgTypes::Level>(7)), "l < NUM_LEVELS");

    LgQueue::Entry e;
    EXPECT_EQ(e.getLevel(), LgTypes::InternalError);
    EXPECT_ASSERTION(e.getOverflowCount(), "_oflow");
    e.setOverflowEntry(true);
    EXPECT_TRUE(e.incOverflowCount());
    e.setOverflowEntry(true);
    EXPECT_EQ(e.getOverflowCount(), 2u);
    EXPECT_ASSERTION(e.setLevel(LgTypes::Error), "!_oflow");
    EXPECT_EQ(e.claimOverflowCount(), 2u);
    EXPECT_FALSE(e.incOverflowCount());
    e.setOverflowEntry(false);
    EXPECT_EQ(e.getLevel(), LgTypes::Tracing);
}

// One producer against one reader: every message is either read whole, in
// order, or counted in an overflow entry; both rings wrap many times. A reader that pauses fills
// the entry ring; long messages fill the text ring while few entries are queued, so that the reader
// often takes the newest overflow entry while the producer is still counting
// into it.
void checkNothingLost(uint64_t messages, size_t payloadSize, bool pausingReader) {
    SCOPED_TRACE(payloadSize);
    LgQueue q(6);
    // Payloads differ from one message to the next, so that stale text in the
    // ring cannot pass for a new message.
    std::vector<std::string> payloads;
    for (char c = 'a'; c <= 'z'; ++c) payloads.emplace_back(payloadSize, c);
    std::atomic<bool> done{false};
    uint64_t lines = 0, counted = 0, overflowEntries = 0;
    bool ordered = true, whole = true;
    std::thread reader([&] {
        std::vector<char> text(LgStream::BufSize);
        long long last = -1;
        // Once the producer is done, an empty queue stays empty.
        for (uint64_t n = 1; !done.load() || !q.isEmpty(); ++n) {
            if (q.isEmpty()) {
                std::this_thread::yield();
                continue;
            }
            if (q.readEntry().isOverflowEntry()) {
                counted += q.takeOverflowCount();
                ++overflowEntries;
            } else {
                q.getStream() >> text.data();
                ++lines;
                // A message cut at its first text ("#") has lost its number; one
                // without a cut marker is whole, or its end was dropped on a
                // full ring.
                if (text[0] != '#') {
                    const long long value = std::stoll(text.data());
                    ordered = ordered && value > last;
                    last = value;
                    const std::string expected =
                        std::to_string(value) + ' ' + payloads[value % payloads.size()];
                    whole = whole &&
                            (std::strchr(text.data(), '#') || expected.rfind(text.data(), 0) == 0);
                }
            }
            q.removeEntry();
            if (pausingReader && n % 256 == 0) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        }
    });
    for (uint64_t i = 0; i < messages; ++i) {
        if (q.reserveEntry(LgTypes::Informational)) {
            q.getStream() << static_cast<unsigned long long>(i) << ' '
                          << payloads[i % payloads.size()].c_str();
            q.addEntry();
        }
    }
    done = true;
    reader.join();
    EXPECT_EQ(lines + counted, messages);
    EXPECT_TRUE(ordered);
    EXPECT_TRUE(whole);
    EXPECT_TRUE(overflowEntries > 0 || !pausingReader);
}

TEST(LgQueue, ConcurrentReaderSeesEveryMessageOrItsCount) {
    checkNothingLost(60000, 8, true);
    checkNothingLost(20000, 3000, false);
}

}  // namespace
