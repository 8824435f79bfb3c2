// Qn::OsPassThroughFilter: keeps every child of a listing.
#pragma once

#include <base/osFileFilter.h>

namespace Qn {

class QN_BASE_API OsPassThroughFilter : public OsFileFilter {
  public:
    bool filter(const OsFilePath& candidate) const override;
};

}  // namespace Qn
