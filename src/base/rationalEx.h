// Qn::RationalEx: the exception family of the rational numbers.
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API RationalEx : public ExBase {
  public:
    // A denominator of zero was given.
    class ExDenominatorZero;

  protected:
    RationalEx(const char* file, int line) : ExBase(file, line) {}
};

QN_EX_FIXED(QN_BASE_API, RationalEx, ExDenominatorZero, std::invalid_argument,
            "Illegal zero denominator.");

}  // namespace Qn
