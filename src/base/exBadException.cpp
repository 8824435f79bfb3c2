#include <base/exBadException.h>

namespace Qn {

ExBadException::ExBadException(const char* fileName, int lineNo) : ExBase(fileName, lineNo) {
    setReason("Invalid exception thrown.");
}

const char* ExBadException::what() const noexcept { return "bad exception"; }

ExBase* ExBadException::clone() const { return new ExBadException(*this); }

}  // namespace Qn
