// Qn::ExSysErrorANSI: a failure of the runtime library, with errno and its text.
#pragma once

#include <cerrno>

#include <base/exSysError.h>

namespace Qn {

class QN_BASE_API ExSysErrorANSI : public ExSysError {
  public:
    // Takes errno as it is at the call (or the given number) and its text as reason.
    ExSysErrorANSI(const char* fileName, int lineNo, int error = errno);

    ExBase* clone() const override;
};

}  // namespace Qn
