// Qn::DtRefClockEx: the exception family of the reference clock.
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API DtRefClockEx : public ExBase {
  public:
    // A reference time was asked for by the name of another clock.
    class SourceMismatch;

  protected:
    DtRefClockEx(const char* file, int line) : ExBase(file, line) {}
};

QN_EX_FIXED(QN_BASE_API, DtRefClockEx, SourceMismatch, std::logic_error,
            "Clock source name does not match system reference clock.");

}  // namespace Qn
