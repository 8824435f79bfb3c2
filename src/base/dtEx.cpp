#include <base/dtEx.h>

namespace Qn {

DtEx::DtStringError::DtStringError(const char* file, int line, ErrorCode code)
    : ExLeaf(file, line), _code(code) {
    setReason("DtString conversion error: ");
    setReason(toString(code));
}

const char* DtEx::DtStringError::toString(ErrorCode code) {
    switch (code) {
        case NumeratorMalformed:
            return "Rate numerator malformed.";
        case NumeratorOverflow:
            return "Rate numerator overflow.";
        case DenominatorMalformed:
            return "Rate denominator malformed.";
        case DenominatorOverflow:
            return "Rate denominator overflow.";
    }
    return "Unknown error.";
}

}  // namespace Qn
