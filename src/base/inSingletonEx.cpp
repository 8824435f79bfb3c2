#include <base/inSingletonEx.h>

#include <cstdio>

namespace Qn {

InSingletonEx::InSingletonEx(const char* fileName, int lineNo, const char* className,
                             const char* text)
    : InEx(fileName, lineNo) {
    char reason[ReasonSize];
    std::snprintf(reason, sizeof reason, "%s %s.", className, text);
    setReason(reason);
}

}  // namespace Qn
