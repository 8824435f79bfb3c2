// Windows companion of DbgBuildInfoRegistry: the loaded libraries are the
// modules of EnumProcessModules other than the program's own, named by
// GetModuleFileNameA.
#include <base/dbgBuildInfoRegistry.h>

#include <windows.h>
// After windows.h, whose types it uses.
#include <psapi.h>

#include <base/exSysErrorWindows.h>

namespace Qn {

Vector<std::string> DbgBuildInfoRegistry::performGetLoadedLibraries() {
    const HANDLE process = GetCurrentProcess();
    Vector<HMODULE> modules(64);
    for (;;) {
        DWORD needed = 0;
        const DWORD size = static_cast<DWORD>(modules.size() * sizeof(HMODULE));
        if (!EnumProcessModules(process, modules.data(), size, &needed))
            throw ExSysErrorWindows(__FILE__, __LINE__);
        if (needed <= size) {
            modules.resize(needed / sizeof(HMODULE));
            break;
        }
        modules.resize(needed / sizeof(HMODULE));
    }
    const HMODULE program = GetModuleHandleA(nullptr);
    Vector<std::string> paths;
    for (HMODULE module : modules) {
        if (module == program) continue;
        char path[MAX_PATH * 4];
        const DWORD length = GetModuleFileNameA(module, path, sizeof path);
        if (length == 0) throw ExSysErrorWindows(__FILE__, __LINE__);
        paths.emplace_back(path, length);
    }
    return paths;
}

}  // namespace Qn
