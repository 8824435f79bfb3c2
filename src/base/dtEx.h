// Qn::DtEx: the exception family of the discrete-time classes.
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API DtEx : public ExBase {
  public:
    // A time was given a rate with a zero numerator.
    class BadRate;
    // Two reference times of different clock rates were combined.
    class BadRefRate;
    // A time string could not be read; carries an error code.
    class DtStringError;

    // An exact conversion's result does not fit in a signed 64-bit count.
    class ExOverflow;
    // A frame rate that timecode does not count, or drop-frame asked for at a
    // rate without it; the message names the rate.
    class ExTimecodeRate;
    class ExTimecodeDropRate;
    // A negative time given to a timecode that does not allow negative values.
    class ExTimecodeNegativeTime;
    // Timecode texts that do not read; each message quotes the text.
    class ExTimecodeFields;
    class ExTimecodeDigits;
    class ExTimecodeRange;
    class ExTimecodeFrame;
    class ExTimecodeDroppedLabel;
    class ExTimecodeDropSeparator;
    class ExTimecodeNegative;

  protected:
    DtEx(const char* file, int line) : ExBase(file, line) {}
};

QN_EX_FIXED(QN_BASE_API, DtEx, BadRate, std::logic_error, "Null rate not allowed in DtTime.");
QN_EX_FIXED(QN_BASE_API, DtEx, BadRefRate, std::logic_error, "Mismatched reference clock rates.");

QN_EX_FIXED(QN_BASE_API, DtEx, ExOverflow, std::overflow_error,
            "Exact time conversion does not fit in 64 bits.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeRate, std::invalid_argument,
             "Frame rate %.*s has no timecode.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeDropRate, std::invalid_argument,
             "Frame rate %.*s has no drop-frame timecode.");
QN_EX_FIXED(QN_BASE_API, DtEx, ExTimecodeNegativeTime, std::invalid_argument,
            "Negative time has no timecode unless negative values are allowed.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeFields, std::invalid_argument,
             "Timecode '%.*s' is not of the form HH:MM:SS:FF.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeDigits, std::invalid_argument,
             "Timecode '%.*s' has a field that is not all digits.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeRange, std::invalid_argument,
             "Timecode '%.*s' has minutes or seconds above 59, or hours out of range.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeFrame, std::invalid_argument,
             "Timecode '%.*s' has a frame field at or above the frame rate.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeDroppedLabel, std::invalid_argument,
             "Timecode '%.*s' names a label that drop-frame counting skips.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeDropSeparator, std::invalid_argument,
             "Timecode '%.*s' has a drop-frame separator at a rate without drop-frame.");
QN_EX_FORMAT(QN_BASE_API, DtEx, ExTimecodeNegative, std::invalid_argument,
             "Timecode '%.*s' is negative, and negative values are not allowed.");

class QN_BASE_API DtEx::DtStringError : public ExLeaf<DtEx::DtStringError, std::logic_error, DtEx> {
  public:
    enum ErrorCode : int {
        NumeratorMalformed = 0,
        NumeratorOverflow = 1,
        DenominatorMalformed = 2,
        DenominatorOverflow = 3,
    };

    // The reason is "DtString conversion error: " followed by toString(code).
    DtStringError(const char* file, int line, ErrorCode code);

    ErrorCode getErrorCode() const { return _code; }
    // The text of a code; "Unknown error." for a value outside the enumeration.
    static const char* toString(ErrorCode code);

  private:
    ErrorCode _code;
};

}  // namespace Qn
