// Qn::RnEx: the exception family of the sampling module.
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API RnEx : public ExBase {
  public:
    // A histogram given to a sampler cannot be sampled (the argument says why).
    class ExInvalidHistogram;
    // A sample file cannot be opened, read or written (path, then the reason).
    class ExSampleFileAccess;
    // A sample file's text does not follow the format (source, then what is wrong).
    class ExSampleFileSyntax;

  protected:
    RnEx(const char* file, int line) : ExBase(file, line) {}
};

QN_EX_FORMAT(QN_BASE_API, RnEx, ExInvalidHistogram, std::logic_error, "Invalid histogram: %.*s.");
QN_EX_FORMAT2(QN_BASE_API, RnEx, ExSampleFileAccess, std::runtime_error,
              "Cannot access sample file '%.*s': %.*s.");
QN_EX_FORMAT2(QN_BASE_API, RnEx, ExSampleFileSyntax, std::runtime_error,
              "Malformed sample file '%.*s': %.*s.");

}  // namespace Qn
