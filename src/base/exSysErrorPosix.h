// Qn::ExSysErrorPosix: a failure of a POSIX system service, with errno and
// strerror's text. On POSIX builds it is Qn::ExSysErrorNative.
#pragma once

#include <cerrno>

#include <base/exSysError.h>

namespace Qn {

class QN_BASE_API ExSysErrorPosix : public ExSysError {
  public:
    // Takes errno as it is at the call (or the given number) and its text as reason.
    ExSysErrorPosix(const char* fileName, int lineNo, int error = errno);

    ExBase* clone() const override;
};

}  // namespace Qn
