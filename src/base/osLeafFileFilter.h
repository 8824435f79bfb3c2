// Qn::OsLeafFileFilter: keeps the children that are not directories and, when
// a suffix is set, whose base name ends with it.
//
// The suffix is compared byte by byte, case-sensitive, and is any text: no dot
// is implied, so the suffix "txt" keeps "a.txt" and also "atxt".
#pragma once

#include <cstdint>

#include <base/arrayPtr.h>
#include <base/osFileFilter.h>

namespace Qn {

class QN_BASE_API OsLeafFileFilter : public OsFileFilter {
  public:
    // Keeps a copy of suffix; null (the default) keeps every non-directory.
    explicit OsLeafFileFilter(const char* suffix = nullptr);

    bool filter(const OsFilePath& candidate) const override;

  private:
    ArrayPtr<char> _suffix;  // null for none
    int32_t _suffixLength;
};

}  // namespace Qn
