// Qn::LgStream: a fixed ring of 32768 characters holding a sequence of
// NUL-terminated strings, written by one producer thread and read by one
// reader thread without locks.
//
// The producer appends text with the insertion operators and completes the
// string with Qn::ends (or completeString); only then may the reader take it
// with operator>>. Nothing allocates after construction and nothing blocks:
// text that does not fit is lost and marked. A string longer than the room
// left becomes "#" (the cut marker, later text of the same string follows it);
// when the ring is full the rest of the string is dropped. Either way
// hasOverflowed() reports it until the reader takes the string.
//
//   stream << "frame " << 12 << " took " << 3.5 << " ms" << Qn::ends;
//   char text[Qn::LgStream::BufSize];
//   if (stream.getNextSize() > 0) stream >> text;
//
// Thread-safety: one producer (insertions, completion, the output flags,
// getNumCharacters, isFull) and one reader (operator>>, getNextSize) may run at
// the same time; the reader sees a string only after its completion. Usually
// the stream belongs to a Qn::LgQueue, whose entries say how many strings
// there are.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API LgStream {
  public:
    static constexpr uint32_t BufSize = 32768;
    static constexpr uint32_t BufMask = BufSize - 1;
    // Output flag bits: text was written since the last reset; the current
    // string was completed (or cut off because the ring was full).
    static constexpr uint32_t TextWritten = 0x1;
    static constexpr uint32_t StringCompleted = 0x2;

    using Manipulator = LgStream& (*)(LgStream&);

    LgStream();
    ~LgStream();
    LgStream(const LgStream&) = delete;
    LgStream& operator=(const LgStream&) = delete;

    // Text. A null string is written as "(null)".
    LgStream& operator<<(const char* text);
    LgStream& operator<<(char* text) { return *this << static_cast<const char*>(text); }
    // One character; a NUL character is ignored (it would end the string).
    LgStream& operator<<(char c);
    LgStream& operator<<(signed char c) { return *this << static_cast<char>(c); }
    LgStream& operator<<(unsigned char c) { return *this << static_cast<char>(c); }
    // "true" or "false".
    LgStream& operator<<(bool value);
    // Numbers, as the standard formatted print writes them: %hd, %hu, %d, %u,
    // %ld, %lu, %lld, %llu, %f (float and double), %Lf and %p. A number whose
    // text does not fit a small local buffer is cut like a long string.
    LgStream& operator<<(short value);
    LgStream& operator<<(unsigned short value);
    LgStream& operator<<(int value);
    LgStream& operator<<(unsigned int value);
    LgStream& operator<<(long value);
    LgStream& operator<<(unsigned long value);
    LgStream& operator<<(long long value);
    LgStream& operator<<(unsigned long long value);
    LgStream& operator<<(float value);
    LgStream& operator<<(double value);
    LgStream& operator<<(long double value);
    LgStream& operator<<(const void* pointer);
    LgStream& operator<<(void* pointer) { return *this << static_cast<const void*>(pointer); }
    // Calls the manipulator on the stream (Qn::ends).
    LgStream& operator<<(Manipulator manipulator) { return manipulator(*this); }

    // Ends the current string and makes it readable. Producer side.
    void completeString();

    // Reader side: moves the next completed string into buffer, which must be
    // larger than getNextSize(); gives an empty string when there is none.
    // Clears the overflow report.
    LgStream& operator>>(char* buffer);
    // Length of the next completed string, 0 when there is none.
    uint32_t getNextSize() const;

    // Producer side: characters the current string can still take.
    uint32_t getNumCharacters() const;
    // Producer side: no character fits.
    bool isFull() const;
    // Text was lost or cut since the reader last took a string.
    bool hasOverflowed() const { return _overflowed.load(std::memory_order_relaxed); }
    uint32_t getOutputFlags() const { return _outputFlags; }
    void resetOutputFlags() { _outputFlags = 0; }
    // The longest string the ring can hold.
    static uint32_t getMaxSize() { return BufSize - 2; }
    // Producer side: the current string has text, or was cut off, and is not
    // completed yet; a commit must complete it so that each entry has one
    // string.
    bool isStringOpen() const { return _stringOpen; }

  private:
    // Appends size characters of text; TooLong stands for a text that never
    // fits and gets the cut marker.
    static constexpr size_t TooLong = BufSize;
    void append(const char* text, size_t size);
    // Steps 1 and 2 of every insertion: false when the ring is full (the rest
    // of the string is then dropped), else makes room after a pending
    // terminator. Returns the reader's position through readPos.
    bool prepareWrite(uint32_t& readPos);
    void copyIn(const char* text, uint32_t size);
    template <class Int>
    LgStream& appendInteger(Int value);
    LgStream& appendFormatted(const char* format, ...);
    // Length of the committed string that starts at pos.
    uint32_t sizeAt(uint32_t pos, uint32_t committed) const;
    void markText() {
        _outputFlags |= TextWritten;
        _stringOpen = true;
    }

    char* _buffer;
    // Reader side: the terminator of the last string taken.
    alignas(64) std::atomic<uint32_t> _readPos;
    // Set by the producer, cleared by the reader.
    std::atomic<bool> _overflowed{false};
    // Producer side.
    alignas(64) std::atomic<uint32_t> _committedPos;
    uint32_t _writePos;
    uint32_t _outputFlags = 0;
    bool _terminatorPending = false;
    bool _stringOpen = false;
    bool _stringDropped = false;
};

// Completes the current string: stream << "text" << Qn::ends.
QN_BASE_API LgStream& ends(LgStream& stream);

}  // namespace Qn
