// Qn::LgEx: the exception family of the message logger.
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API LgEx : public ExBase {
  public:
    // A level name matched none of the seven level names.
    class InvalidLevelString;

  protected:
    LgEx(const char* file, int line) : ExBase(file, line) {}
};

QN_EX_FORMAT(QN_BASE_API, LgEx, InvalidLevelString, std::invalid_argument,
             "Invalid level string specified: %.*s");

}  // namespace Qn
