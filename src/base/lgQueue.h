// Qn::LgQueue: the message queue of one producer thread, read by one reader
// thread without locks: a ring of 1024 entries, each of whose messages has its
// text in the queue's character ring (Qn::LgStream, getStream()).
//
// The producer reserves an entry with a level, writes the text into the
// stream with its insertion operators and commits the entry; the reader takes
// the oldest entry, its text and removes it. The producer never waits: when
// the entry ring or the text ring is full the message is counted in one
// overflow entry, whose count says how many messages were lost and whose time
// stamp says when the loss began. Two entries are always kept back, one so
// that an overflow entry can always be made.
//
//   Producer                                      Reader
//   if (q.reserveEntry(LgTypes::Warning)) {       while (!q.isEmpty()) {
//       q.getStream() << "disk " << n << " full";     if (q.readEntry().isOverflowEntry())
//       q.addEntry();                                     lost += q.takeOverflowCount();
//   }                                                 else q.getStream() >> text;
//                                                     q.removeEntry();
//                                                 }
//
// Thread-safety: the producer alone reserves, writes, commits and calls
// creatorExit; the reader alone reads, takes counts and removes. Each side
// publishes its position with release ordering after the data it guards (text
// and entry first, then the position) and reads the other's with acquire
// ordering. isEmpty, isEntryRingFull and isCreatorAlive may be asked from any
// thread. The observer is called on the thread that caused the event.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

#include <base/lgStream.h>
#include <base/lgTypes.h>

namespace Qn {

class QN_BASE_API LgQueue {
  public:
    static constexpr uint32_t NumEntries = 1024;
    static constexpr uint32_t EntryMask = NumEntries - 1;

    // One slot of the ring: a message of a level, or an overflow entry counting
    // lost messages; with the time stamp of the reservation or of the first
    // loss. A new entry is a message entry of level 0 with time stamp 0.
    class QN_BASE_API Entry {
      public:
        Entry() = default;
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

        bool isOverflowEntry() const { return _oflow; }
        // true turns a message entry into an overflow entry of count 1; false
        // turns an overflow entry into a message entry of level "Tracing".
        // Setting the current kind again changes nothing.
        void setOverflowEntry(bool overflow);

        // REQUIRES: a message entry ("!_oflow").
        LgTypes::Level getLevel() const;
        void setLevel(LgTypes::Level level);

        // REQUIRES for the three below: an overflow entry ("_oflow").
        uint32_t getOverflowCount() const;
        // Producer side: counts one more lost message. False when the reader
        // has claimed the count already: the caller must start a new overflow
        // entry. A count of 2^31-1 stays there.
        bool incOverflowCount();
        // Reader side: the count, claimed for good; a producer counting later
        // losses starts a new entry, so none is lost between read and removal.
        uint32_t claimOverflowCount();

        uint64_t getTimeStamp() const { return _timeStamp; }
        void setTimeStamp(uint64_t timeStamp) { _timeStamp = timeStamp; }

      private:
        friend class LgQueue;
        // Fills the slot for a new reservation or a new overflow entry.
        void reset(bool overflow, uint32_t levelOrCount, uint64_t timeStamp) {
            _oflow = overflow;
            _levelOrCount.store(levelOrCount, std::memory_order_relaxed);
            _timeStamp = timeStamp;
        }

        static constexpr uint32_t Claimed = 0x80000000u;
        static constexpr uint32_t CountMask = Claimed - 1;

        bool _oflow = false;
        // The level of a message entry, or the count of an overflow entry with
        // the reader's claim in its top bit.
        std::atomic<uint32_t> _levelOrCount{0};
        uint64_t _timeStamp = 0;
    };

    // Listener for the queue's traffic, installed once per queue.
    class QN_BASE_API Observer {
      public:
        virtual ~Observer();
        // Whether the observer wants entryAdded and entryRemoved; asked once,
        // when it is installed, so that an observer of waitForSpace alone costs
        // nothing per message.
        virtual bool observesTraffic() const { return true; }
        // A message entry was committed (producer thread).
        virtual void entryAdded(LgQueue& queue) = 0;
        // An entry was removed (reader thread).
        virtual void entryRemoved(LgQueue& queue) = 0;
        // The producer asks to wait until the queue has a free entry and room
        // for size characters.
        virtual void waitForSpace(LgQueue& queue, int size) = 0;
    };

    // Makes reservations fail, uncounted, while it lives (for code that must
    // not log, such as the logger's own error paths). Nests. Producer thread.
    class QN_BASE_API SuppressGuard {
      public:
        explicit SuppressGuard(LgQueue& queue);
        ~SuppressGuard();
        SuppressGuard(const SuppressGuard&) = delete;
        SuppressGuard& operator=(const SuppressGuard&) = delete;

      private:
        LgQueue& _queue;
    };

    // An empty queue for the producer thread threadId.
    explicit LgQueue(unsigned long threadId);
    // REQUIRES: the queue was drained ("_beg == _end"); raises ExInternalError
    // otherwise.
    ~LgQueue() noexcept(false);
    // A queue belongs to the two threads that use it: it is neither copied nor
    // moved.
    LgQueue(const LgQueue&) = delete;
    LgQueue& operator=(const LgQueue&) = delete;

    // Producer: starts a message of the given level stamped with the hardware
    // counter now (or with timeStamp). True when the text may be written; false
    // when suppressed (nothing counted) or when the queue or its text ring is
    // full (the message is counted as lost).
    bool reserveEntry(LgTypes::Level level);
    bool reserveEntry(LgTypes::Level level, uint64_t timeStamp);
    // Producer: commits the reserved entry, completing its text. An entry
    // without text is dropped. Does nothing without a reservation.
    void addEntry();

    // Reader: the oldest entry. REQUIRES: not empty ("_beg != _end").
    const Entry& readEntry() const;
    // Reader: the count of the oldest entry, an overflow entry, claimed (see
    // Entry::claimOverflowCount). REQUIRES: not empty; an overflow entry.
    uint32_t takeOverflowCount();
    // Reader: removes the oldest entry (its text must have been taken).
    // REQUIRES: not empty ("_beg != _end").
    void removeEntry();

    bool isEmpty() const {
        return _beg.load(std::memory_order_acquire) == _end.load(std::memory_order_acquire);
    }
    // Fewer than three free entries: no message entry can be reserved (the
    // text ring may be full too: getStream().isFull()).
    bool isEntryRingFull() const;
    bool isFull() const { return isEntryRingFull(); }
    // The ring of the messages' texts.
    LgStream& getStream() { return _stream; }
    const LgStream& getStream() const { return _stream; }
    uint32_t getThreadId() const { return _threadId; }

    // Producer: says that no entry will come any more; the reader may destroy
    // the queue once it is drained.
    void creatorExit() { _creatorAlive.store(false, std::memory_order_release); }
    bool isCreatorAlive() const { return _creatorAlive.load(std::memory_order_acquire); }

    // Installs the observer and returns the previous one (null). Install it
    // before the producer and the reader use the queue.
    // REQUIRES: no observer yet ("_observer.isNull()").
    std::shared_ptr<Observer> changeObserver(std::shared_ptr<Observer> observer);
    // Producer: forwards to the observer's waitForSpace; nothing without one.
    void waitForSpace(int size);

    // The most entries the queue holds.
    static uint32_t getMaxSize() { return NumEntries - 1; }

  private:
    // The index of the oldest entry. REQUIRES: not empty ("_beg != _end").
    uint32_t head() const;
    // Reserving failed: counts the message in the newest overflow entry, or
    // starts one in the slot kept back for it.
    void countLostMessage(uint64_t timeStamp);

    LgStream _stream;
    Entry* _entries;
    // Reader side: the oldest unread entry.
    alignas(64) std::atomic<uint32_t> _beg{0};
    // Producer side: the next free slot, and the producer's own state.
    alignas(64) std::atomic<uint32_t> _end{0};
    std::atomic<bool> _creatorAlive{true};
    bool _reserved = false;
    uint32_t _threadId;
    uint32_t _suppressCount = 0;
    std::shared_ptr<Observer> _observer;
    // The observer wants entryAdded and entryRemoved.
    bool _observeTraffic = false;
};

}  // namespace Qn
