// Qn::OsDirectoryFilter: keeps the children that exist and are directories.
#pragma once

#include <base/osFileFilter.h>

namespace Qn {

class QN_BASE_API OsDirectoryFilter : public OsFileFilter {
  public:
    bool filter(const OsFilePath& candidate) const override;
};

}  // namespace Qn
