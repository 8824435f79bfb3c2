#include <base/osDirectoryFilter.h>

#include <base/osFsUtils.h>

namespace Qn {

bool OsDirectoryFilter::filter(const OsFilePath& candidate) const {
    return OsFsUtils::isDirectory(candidate.getText());
}

}  // namespace Qn
