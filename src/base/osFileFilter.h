// Qn::OsFileFilter: chooses the children a directory listing returns.
#pragma once

#include <base/osFilePath.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsFileFilter {
  public:
    virtual ~OsFileFilter();
    // True to keep candidate, the full path of a child.
    virtual bool filter(const OsFilePath& candidate) const = 0;
};

}  // namespace Qn
