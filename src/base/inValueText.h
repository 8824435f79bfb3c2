// Qn::InValueText: the conversions of configuration texts to values, shared by
// configuration variables and environment readers. They never fail.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API InValueText {
  public:
    // As atoi: leading digits with an optional sign; 0 when there are none.
    static int toInt(const char* text);
    // False for null, "0" and "false" in any case; true for every other text.
    static bool toBool(const char* text);
};

}  // namespace Qn
