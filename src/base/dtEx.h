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

  protected:
    DtEx(const char* file, int line) : ExBase(file, line) {}
};

QN_EX_FIXED(QN_BASE_API, DtEx, BadRate, std::logic_error, "Null rate not allowed in DtTime.");
QN_EX_FIXED(QN_BASE_API, DtEx, BadRefRate, std::logic_error, "Mismatched reference clock rates.");

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
