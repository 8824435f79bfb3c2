#include <base/dbgVersion.h>

namespace Qn {

std::string DbgVersion::toString() const {
    return std::to_string(_major) + "." + std::to_string(_minor) + "." + std::to_string(_patch);
}

}  // namespace Qn
