#include <base/exInternalError.h>

namespace Qn {

ExInternalError::ExInternalError(const char* fileName, int lineNo, const char* reason)
    : std::runtime_error(""), ExBase(fileName, lineNo) {
    setReason(reason);
}

const char* ExInternalError::what() const noexcept { return getReason(); }

ExBase* ExInternalError::clone() const { return new ExInternalError(*this); }

}  // namespace Qn
