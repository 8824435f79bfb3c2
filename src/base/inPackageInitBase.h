// Qn::InPackageInitBase: abstract root of every package (see inPackageInit.h).
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API InPackageInitBase {
  public:
    virtual ~InPackageInitBase();
};

}  // namespace Qn
