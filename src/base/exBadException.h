// Qn::ExBadException: stands for an exception of an unknown kind; what a handler
// throws in its place.
#pragma once

#include <exception>

#include <base/exBase.h>

namespace Qn {

class QN_BASE_API ExBadException : public ExBase, public std::bad_exception {
  public:
    // Reason "Invalid exception thrown."; what() is "bad exception".
    ExBadException(const char* fileName, int lineNo);

    const char* what() const noexcept override;
    ExBase* clone() const override;
};

}  // namespace Qn
