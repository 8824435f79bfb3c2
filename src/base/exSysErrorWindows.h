// Qn::ExSysErrorWindows: a failure of a Windows system service, with
// GetLastError()'s number and the system's message for it. On Windows builds it
// is Qn::ExSysErrorNative.
#pragma once

#include <base/exSysError.h>

namespace Qn {

class QN_BASE_API ExSysErrorWindows : public ExSysError {
  public:
    // Takes GetLastError() at the call and the system's text for it
    // (FormatMessageA) as the reason, without its final line end.
    ExSysErrorWindows(const char* fileName, int lineNo);
    // The same for a given system error number.
    ExSysErrorWindows(const char* fileName, int lineNo, unsigned long error);

    ExBase* clone() const override;

  private:
    void describe(unsigned long error);
};

}  // namespace Qn
