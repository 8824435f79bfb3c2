// The family's members are defined in the header; this file anchors the family
// in the library so that every member is exported from it.
#include <base/prEx.h>

namespace Qn {

PrEx::PrEx(const char* file, int line) : ExBase(file, line) {}

}  // namespace Qn
