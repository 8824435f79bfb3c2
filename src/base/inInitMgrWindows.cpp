// Windows companion of InInitMgr: reads the process environment block
// (GetEnvironmentStringsA).
#include <base/inInitMgr.h>

#include <windows.h>

#include <cstring>

namespace Qn {

Vector<std::string> InInitMgr::performReadEnvironment() {
    Vector<std::string> entries;
    char* block = GetEnvironmentStringsA();
    if (!block) return entries;
    for (const char* entry = block; *entry; entry += std::strlen(entry) + 1)
        entries.emplace_back(entry);
    FreeEnvironmentStringsA(block);
    return entries;
}

}  // namespace Qn
