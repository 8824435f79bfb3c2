// POSIX companion of InInitMgr: reads the process environment block (environ).
#include <base/inInitMgr.h>

#include <unistd.h>

namespace Qn {

Vector<std::string> InInitMgr::performReadEnvironment() {
    Vector<std::string> entries;
    for (char** entry = environ; entry && *entry; ++entry) entries.emplace_back(*entry);
    return entries;
}

}  // namespace Qn
