// Anchors the family in the library, and builds the reasons that need a number.
#include <base/prEx.h>

#include <cstdio>

namespace Qn {

PrEx::PrEx(const char* file, int line) : ExBase(file, line) {}

PrEx::ExInvalidDuration::ExInvalidDuration(const char* file, int line, double seconds)
    : ExLeaf(file, line) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", seconds);
    setReasonCut("Invalid duration: <%.*s> seconds.", text);
}

}  // namespace Qn
