#include <base/assertions.h>

#include <cstdio>

#include <base/exInternalError.h>
#include <base/exSysError.h>

namespace Qn {

void Assertions::throwAssertionFailed(const char* fileName, int lineNo, const char* expression) {
    char reason[ExBase::ReasonSize];
    std::snprintf(reason, sizeof reason, "Assertion '%s' failed.", expression);
    throw ExInternalError(fileName, lineNo, reason);
}

void Assertions::throwSysAssertionFailed(const char* fileName, int lineNo, const char* expression,
                                         int error) {
    char text[256];
    ExSysError::getErrnoText(error, text, sizeof text);
    char reason[ExBase::ReasonSize];
    std::snprintf(reason, sizeof reason, "Assertion '%s' failed, errno = %d (%s).", expression,
                  error, text);
    throw ExInternalError(fileName, lineNo, reason);
}

void Assertions::throwProgramAborted(const char* fileName, int lineNo) {
    throw ExInternalError(fileName, lineNo, "Program aborted.");
}

}  // namespace Qn
