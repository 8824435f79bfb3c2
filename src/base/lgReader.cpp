#include <base/lgReader.h>

#include <charconv>
#include <cstring>
#include <iostream>

#include <base/assertions.h>
#include <base/lgInterProcessLockGuard.h>
#include <base/lgLog.h>

namespace Qn {

namespace {

constexpr uint32_t BufSize = LgStream::BufSize;

// Writes value in decimal, zero-filled to ten digits.
char* putDecimal10(char* out, uint32_t value) {
    for (int i = 9; i >= 0; --i) {
        out[i] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    return out + 10;
}

// Writes value in lower-case hexadecimal, zero-filled to eight digits.
char* putHex8(char* out, uint32_t value) {
    static const char digits[] = "0123456789abcdef";
    for (int i = 7; i >= 0; --i) {
        out[i] = digits[value & 0xF];
        value >>= 4;
    }
    return out + 8;
}

char* putText(char* out, const char* text) {
    const size_t size = std::strlen(text);
    std::memcpy(out, text, size);
    return out + size;
}

// "hhhhhhhhhh llllllllll (0xtttttttt) Level: " for ticks since the start.
size_t formatPrefix(char* out, uint64_t ticks, uint32_t threadId, LgTypes::Level level) {
    char* p = putDecimal10(out, static_cast<uint32_t>(ticks >> 32));
    *p++ = ' ';
    p = putDecimal10(p, static_cast<uint32_t>(ticks));
    p = putText(p, " (0x");
    p = putHex8(p, threadId);
    p = putText(p, ") ");
    p = putText(p, LgTypes::getLevelName(level));
    p = putText(p, ": ");
    return static_cast<size_t>(p - out);
}

}  // namespace

LgReader::LgReader() : _text(new char[BufSize]) {}

LgReader::~LgReader() = default;

bool LgReader::eventsPending() {
    const std::shared_ptr<LgRegistry> registry = LgLog::getRegistry();
    if (!registry) return false;
    for (LgQueue* queue : registry->getQueueList()) {
        if (!queue->isEmpty()) return true;
    }
    return false;
}

bool LgReader::flushEarliest() {
    const std::shared_ptr<LgRegistry> registry = LgLog::getRegistry();
    LgQueue* earliest = nullptr;
    uint64_t earliestStamp = 0;
    if (registry) {
        for (LgQueue* queue : registry->getQueueList()) {
            // Asked before emptiness: a producer that has exited commits nothing
            // more, so an empty queue then stays empty.
            const bool alive = queue->isCreatorAlive();
            if (queue->isEmpty()) {
                if (!alive) {
                    registry->deregisterQueue(queue);
                    delete queue;
                }
                continue;
            }
            const uint64_t stamp = queue->readEntry().getTimeStamp();
            if (!earliest || stamp < earliestStamp) {
                earliest = queue;
                earliestStamp = stamp;
            }
        }
    }
    if (!earliest) {
        LgLog::flush();
        return false;
    }
    flushQueue(earliest);
    return true;
}

void LgReader::flushAll() {
    while (flushEarliest()) {
    }
}

void LgReader::flushQueue(LgQueue* q) {
    QN_ASSERT_TEXT(q && !q->isEmpty(), "!q->isEmpty()");
    const LgQueue::Entry& entry = q->readEntry();
    const bool overflow = entry.isOverflowEntry();
    const LgTypes::Level level = overflow ? LgTypes::Informational : entry.getLevel();
    std::ostream* file = LgLog::getLevelOutput(level);
    std::ostream* echo = LgLog::isLevelEchoed(level) ? &std::cout : nullptr;
    const std::shared_ptr<LgInterProcessLock> lock = LgLog::getInterProcessLock();
    const LgInterProcessLockGuard hold(lock.get());

    char prefix[96];
    size_t prefixSize = 0;
    if (LgLog::isTimeStampsEnabled()) {
        prefixSize =
            formatPrefix(prefix, entry.getTimeStamp() - LgLog::getStart(), q->getThreadId(), level);
    }
    size_t textSize;
    if (overflow) {
        char* p = putText(_text.get(), "Event overflow [");
        p = std::to_chars(p, p + 16, q->takeOverflowCount()).ptr;
        *p++ = ']';
        textSize = static_cast<size_t>(p - _text.get());
    } else {
        textSize = q->getStream().getNextSize();
        QN_ASSERT_TEXT(textSize < BufSize, "q->getStream().getNextSize() < BufSize");
        q->getStream() >> _text.get();
    }
    _text[textSize] = '\n';
    for (std::ostream* out : {file, echo}) {
        if (!out) continue;
        out->write(prefix, static_cast<std::streamsize>(prefixSize));
        out->write(_text.get(), static_cast<std::streamsize>(textSize + 1));
        // Another process may write the next line of the same file.
        if (lock) out->flush();
    }
    q->removeEntry();
}

}  // namespace Qn
