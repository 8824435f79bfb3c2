#include <base/lgReader.h>

#include <charconv>
#include <cstring>

#include <base/assertions.h>
#include <base/lgLog.h>

namespace Qn {

namespace {

constexpr uint32_t BufSize = LgStream::BufSize;

}  // namespace

LgReader::LgReader() : LgReader(LgLog::getLogger()) {}

LgReader::LgReader(LgLogger& logger)
    : _logger(logger), _line(new char[LgLogger::PrefixRoom + BufSize + 1]) {}

LgReader::~LgReader() = default;

bool LgReader::eventsPending() {
    LgRegistry* registry = _logger.getRegistry().get();
    if (!registry) return false;
    for (LgQueue* queue : registry->readQueues()) {
        if (!queue->isEmpty()) return true;
    }
    return false;
}

bool LgReader::flushEarliest() {
    LgRegistry* registry = _logger.getRegistry().get();
    LgQueue* earliest = nullptr;
    uint64_t earliestStamp = 0;
    if (registry) {
        for (LgQueue* queue : registry->readQueues()) {
            if (queue->isEmpty()) {
                // A producer that has exited commits nothing more: once its
                // exit is seen, an empty queue stays empty.
                if (!queue->isCreatorAlive() && queue->isEmpty()) {
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
        _logger.flush();
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
    LgLogger::Line line;
    line.timeStamp = entry.getTimeStamp();
    line.threadId = q->getThreadId();
    line.text = _line.get() + LgLogger::PrefixRoom;
    if (entry.isOverflowEntry()) {
        static const char lost[] = "Event overflow [";
        line.level = LgTypes::Informational;
        char* p = line.text + sizeof lost - 1;
        std::memcpy(line.text, lost, sizeof lost - 1);
        p = std::to_chars(p, p + 16, q->takeOverflowCount()).ptr;
        *p++ = ']';
        line.size = static_cast<size_t>(p - line.text);
    } else {
        line.level = entry.getLevel();
        line.size = q->getStream().getNextSize();
        QN_ASSERT_TEXT(line.size < BufSize, "q->getStream().getNextSize() < BufSize");
        q->getStream() >> line.text;
    }
    _logger.writeLine(line);
    q->removeEntry();
}

}  // namespace Qn
