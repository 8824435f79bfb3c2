// Qn::ExInternalError: an invariant of the library or of its caller was broken.
// Raised by the assertion operations (assertions.h) and by internal checks.
#pragma once

#include <stdexcept>

#include <base/exBase.h>

namespace Qn {

class QN_BASE_API ExInternalError : public std::runtime_error, public ExBase {
  public:
    // A null reason leaves the reason empty.
    ExInternalError(const char* fileName, int lineNo, const char* reason);

    const char* what() const noexcept override;
    ExBase* clone() const override;
};

}  // namespace Qn
