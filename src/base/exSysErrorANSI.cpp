#include <base/exSysErrorANSI.h>

namespace Qn {

ExSysErrorANSI::ExSysErrorANSI(const char* fileName, int lineNo, int error)
    : ExBase(fileName, lineNo), ExSysError(fileName, lineNo) {
    setFromErrno(error);
}

ExBase* ExSysErrorANSI::clone() const { return new ExSysErrorANSI(*this); }

}  // namespace Qn
