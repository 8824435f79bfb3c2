#include <base/lgStream.h>

#include <algorithm>
#include <charconv>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace Qn {

namespace {

// Integers take at most 20 digits and a sign; a double in "%f" form at most
// 309 digits and the decimals. Longer texts (long double) are cut.
constexpr size_t IntegerBufferSize = 24;
constexpr size_t FloatBufferSize = 512;

}  // namespace

// The ring starts as if an empty string had been read at position 0: the read
// position rests on a terminator, as it does after every read, so the first
// string is found the same way as every later one.
LgStream::LgStream() : _buffer(new char[BufSize]()), _readPos(0), _committedPos(0), _writePos(1) {}

LgStream::~LgStream() { delete[] _buffer; }

bool LgStream::prepareWrite(uint32_t& readPos) {
    readPos = _readPos.load(std::memory_order_acquire);
    if (_stringDropped) return false;
    if (((_writePos + 1) & BufMask) == readPos) {
        // Full: the rest of this string is dropped, and the commit completes
        // what it holds so far.
        _overflowed.store(true, std::memory_order_relaxed);
        _outputFlags |= StringCompleted;
        _stringOpen = true;
        _stringDropped = true;
        return false;
    }
    if (_terminatorPending) {
        _writePos = (_writePos + 1) & BufMask;
        _terminatorPending = false;
    }
    return true;
}

void LgStream::copyIn(const char* text, uint32_t size) {
    const uint32_t first = std::min(size, BufSize - _writePos);
    std::memcpy(_buffer + _writePos, text, first);
    std::memcpy(_buffer, text + first, size - first);
    _writePos = (_writePos + size) & BufMask;
}

void LgStream::append(const char* text, size_t size) {
    uint32_t readPos;
    if (!prepareWrite(readPos)) return;
    const uint32_t room = (readPos - _writePos - 1) & BufMask;
    if (size > room) {
        // The cut marker: "#" and a terminator, which the next text of the
        // same string overwrites.
        _overflowed.store(true, std::memory_order_relaxed);
        _buffer[_writePos] = '#';
        _writePos = (_writePos + 1) & BufMask;
        _buffer[_writePos] = '\0';
    } else {
        copyIn(text, static_cast<uint32_t>(size));
    }
    markText();
}

LgStream& LgStream::operator<<(const char* text) {
    if (!text) text = "(null)";
    append(text, std::strlen(text));
    return *this;
}

LgStream& LgStream::operator<<(char c) {
    if (c == '\0') return *this;
    uint32_t readPos;
    if (!prepareWrite(readPos)) return *this;
    _buffer[_writePos] = c;
    _writePos = (_writePos + 1) & BufMask;
    markText();
    return *this;
}

LgStream& LgStream::operator<<(bool value) { return *this << (value ? "true" : "false"); }

// Integers through to_chars, which writes the same digits as %d and its kin
// without parsing a format.
template <class Int>
LgStream& LgStream::appendInteger(Int value) {
    char text[IntegerBufferSize];
    const auto result = std::to_chars(text, text + sizeof text, value);
    append(text, static_cast<size_t>(result.ptr - text));
    return *this;
}

LgStream& LgStream::appendFormatted(const char* format, ...) {
    char text[FloatBufferSize];
    va_list arguments;
    va_start(arguments, format);
    const int size = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (size >= 0) append(text, static_cast<size_t>(size) < sizeof text ? size : TooLong);
    return *this;
}

LgStream& LgStream::operator<<(short value) { return appendInteger(value); }
LgStream& LgStream::operator<<(unsigned short value) { return appendInteger(value); }
LgStream& LgStream::operator<<(int value) { return appendInteger(value); }
LgStream& LgStream::operator<<(unsigned int value) { return appendInteger(value); }
LgStream& LgStream::operator<<(long value) { return appendInteger(value); }
LgStream& LgStream::operator<<(unsigned long value) { return appendInteger(value); }
LgStream& LgStream::operator<<(long long value) { return appendInteger(value); }
LgStream& LgStream::operator<<(unsigned long long value) { return appendInteger(value); }
LgStream& LgStream::operator<<(float value) { return appendFormatted("%f", double{value}); }
LgStream& LgStream::operator<<(double value) { return appendFormatted("%f", value); }
LgStream& LgStream::operator<<(long double value) { return appendFormatted("%Lf", value); }
LgStream& LgStream::operator<<(const void* pointer) { return appendFormatted("%p", pointer); }

void LgStream::completeString() {
    const uint32_t readPos = _readPos.load(std::memory_order_acquire);
    _buffer[_writePos] = '\0';
    _committedPos.store(_writePos, std::memory_order_release);
    _outputFlags |= StringCompleted;
    _stringOpen = false;
    _stringDropped = false;
    if (((_writePos + 1) & BufMask) == readPos) {
        _terminatorPending = true;
    } else {
        _writePos = (_writePos + 1) & BufMask;
    }
}

LgStream& ends(LgStream& stream) {
    stream.completeString();
    return stream;
}

// The reader's position rests on the terminator of the last string taken, so
// the next string starts one further on.
LgStream& LgStream::operator>>(char* buffer) {
    const uint32_t committed = _committedPos.load(std::memory_order_acquire);
    uint32_t pos = _readPos.load(std::memory_order_relaxed);
    buffer[0] = '\0';
    if (committed == pos) return *this;
    if (_buffer[pos] == '\0') pos = (pos + 1) & BufMask;
    const uint32_t size = sizeAt(pos, committed);
    const uint32_t first = std::min(size, BufSize - pos);
    std::memcpy(buffer, _buffer + pos, first);
    std::memcpy(buffer + first, _buffer, size - first);
    buffer[size] = '\0';
    _overflowed.store(false, std::memory_order_relaxed);
    _readPos.store((pos + size) & BufMask, std::memory_order_release);
    return *this;
}

uint32_t LgStream::getNextSize() const {
    const uint32_t committed = _committedPos.load(std::memory_order_acquire);
    uint32_t pos = _readPos.load(std::memory_order_relaxed);
    if (committed == pos) return 0;
    if (_buffer[pos] == '\0') pos = (pos + 1) & BufMask;
    return sizeAt(pos, committed);
}

// Only the committed bytes are searched: the producer may be writing beyond.
uint32_t LgStream::sizeAt(uint32_t pos, uint32_t committed) const {
    const uint32_t span = ((committed - pos) & BufMask) + 1;
    const uint32_t first = std::min(span, BufSize - pos);
    const char* end = static_cast<const char*>(std::memchr(_buffer + pos, '\0', first));
    if (end) return static_cast<uint32_t>(end - (_buffer + pos));
    end = static_cast<const char*>(std::memchr(_buffer, '\0', span - first));
    return static_cast<uint32_t>(first + (end - _buffer));
}

uint32_t LgStream::getNumCharacters() const {
    const uint32_t readPos = _readPos.load(std::memory_order_acquire);
    const uint32_t room = (readPos - _writePos - 1) & BufMask;
    if (!_terminatorPending) return room;
    return room == 0 ? 0 : room - 1;
}

bool LgStream::isFull() const {
    return ((_writePos + 1) & BufMask) == _readPos.load(std::memory_order_acquire);
}

}  // namespace Qn
