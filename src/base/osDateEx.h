// Qn::OsDateEx: the exceptions of the calendar conversions.
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API OsDateEx : public ExBase {
  public:
    class ExInvalidDate;  // calendar fields that name no moment

  protected:
    OsDateEx(const char* file, int line);
};

QN_EX_FORMAT(QN_BASE_API, OsDateEx, ExInvalidDate, std::invalid_argument, "Invalid date: '%.*s'.");

}  // namespace Qn
