// Anchors the family in the library; its members are defined in the header.
#include <base/dbgBuildInfoEx.h>

namespace Qn {

DbgBuildInfoEx::DbgBuildInfoEx(const char* file, int line) : ExBase(file, line) {}

}  // namespace Qn
