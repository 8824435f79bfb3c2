#include <base/lgQueue.h>

#include <base/assertions.h>
#include <base/hwCounter.h>

namespace Qn {

static_assert(sizeof(LgQueue::Entry) == 16, "an entry is 16 bytes");

void LgQueue::Entry::setOverflowEntry(bool overflow) {
    if (overflow == _oflow) return;
    _oflow = overflow;
    _levelOrCount.store(overflow ? 1u : uint32_t{LgTypes::Tracing}, std::memory_order_relaxed);
}

LgTypes::Level LgQueue::Entry::getLevel() const {
    QN_ASSERT(!_oflow);
    return static_cast<LgTypes::Level>(_levelOrCount.load(std::memory_order_relaxed));
}

void LgQueue::Entry::setLevel(LgTypes::Level level) {
    QN_ASSERT(!_oflow);
    _levelOrCount.store(level, std::memory_order_relaxed);
}

uint32_t LgQueue::Entry::getOverflowCount() const {
    QN_ASSERT(_oflow);
    return _levelOrCount.load(std::memory_order_relaxed) & CountMask;
}

bool LgQueue::Entry::incOverflowCount() {
    QN_ASSERT(_oflow);
    uint32_t count = _levelOrCount.load(std::memory_order_relaxed);
    do {
        if (count & Claimed) return false;
        if (count == CountMask) return true;
    } while (!_levelOrCount.compare_exchange_weak(count, count + 1, std::memory_order_relaxed));
    return true;
}

uint32_t LgQueue::Entry::claimOverflowCount() {
    QN_ASSERT(_oflow);
    return _levelOrCount.fetch_or(Claimed, std::memory_order_relaxed) & CountMask;
}

LgQueue::Observer::~Observer() = default;

LgQueue::SuppressGuard::SuppressGuard(LgQueue& queue) : _queue(queue) { ++_queue._suppressCount; }

LgQueue::SuppressGuard::~SuppressGuard() { --_queue._suppressCount; }

LgQueue::LgQueue(unsigned long threadId)
    : _entries(new Entry[NumEntries]), _threadId(static_cast<uint32_t>(threadId)) {}

LgQueue::~LgQueue() noexcept(false) {
    delete[] _entries;
    QN_ASSERT_TEXT(_beg.load(std::memory_order_acquire) == _end.load(std::memory_order_acquire),
                   "_beg == _end");
}

bool LgQueue::isEntryRingFull() const {
    const uint32_t end = _end.load(std::memory_order_acquire);
    const uint32_t beg = _beg.load(std::memory_order_acquire);
    return ((end + 1) & EntryMask) == beg || ((end + 2) & EntryMask) == beg;
}

bool LgQueue::reserveEntry(LgTypes::Level level) {
    return reserveEntry(level, HwCounter::timeStamp());
}

bool LgQueue::reserveEntry(LgTypes::Level level, uint64_t timeStamp) {
    QN_ASSERT_TEXT(level < LgTypes::NUM_LEVELS, "l < NUM_LEVELS");
    if (_suppressCount > 0) return false;
    if (_stream.isFull() || isEntryRingFull()) {
        countLostMessage(timeStamp);
        return false;
    }
    _entries[_end.load(std::memory_order_relaxed)].reset(false, level, timeStamp);
    _stream.resetOutputFlags();
    _reserved = true;
    return true;
}

void LgQueue::countLostMessage(uint64_t timeStamp) {
    const uint32_t end = _end.load(std::memory_order_relaxed);
    Entry& newest = _entries[(end - 1) & EntryMask];
    if (newest.isOverflowEntry() && newest.incOverflowCount()) return;
    // The newest entry is a message, or an overflow entry the reader has
    // claimed (then it is the only one left): either way the slot at _end is
    // free and the one after it is not the oldest.
    _entries[end].reset(true, 1, timeStamp);
    _end.store((end + 1) & EntryMask, std::memory_order_release);
}

void LgQueue::addEntry() {
    if (!_reserved) return;
    _reserved = false;
    if (!(_stream.getOutputFlags() & LgStream::TextWritten)) return;
    if (_stream.isStringOpen()) _stream.completeString();
    const uint32_t end = _end.load(std::memory_order_relaxed);
    const uint32_t beg = _beg.load(std::memory_order_acquire);
    QN_ASSERT_TEXT(((end + 1) & EntryMask) != beg, "_end+1U != _beg");
    QN_ASSERT_TEXT(((end + 2) & EntryMask) != beg, "_end+2U != _beg");
    _end.store((end + 1) & EntryMask, std::memory_order_release);
    if (_observeTraffic) _observer->entryAdded(*this);
}

uint32_t LgQueue::head() const {
    const uint32_t beg = _beg.load(std::memory_order_relaxed);
    QN_ASSERT_TEXT(beg != _end.load(std::memory_order_acquire), "_beg != _end");
    return beg;
}

const LgQueue::Entry& LgQueue::readEntry() const { return _entries[head()]; }

uint32_t LgQueue::takeOverflowCount() { return _entries[head()].claimOverflowCount(); }

void LgQueue::removeEntry() {
    const uint32_t beg = head();
    // Once removed, an overflow entry must take no more counts.
    Entry& entry = _entries[beg];
    if (entry.isOverflowEntry()) entry.claimOverflowCount();
    _beg.store((beg + 1) & EntryMask, std::memory_order_release);
    if (_observeTraffic) _observer->entryRemoved(*this);
}

std::shared_ptr<LgQueue::Observer> LgQueue::changeObserver(std::shared_ptr<Observer> observer) {
    QN_ASSERT_TEXT(!_observer, "_observer.isNull()");
    _observer.swap(observer);
    _observeTraffic = _observer && _observer->observesTraffic();
    return observer;
}

void LgQueue::waitForSpace(int size) {
    if (_observer) _observer->waitForSpace(*this, size);
}

}  // namespace Qn
