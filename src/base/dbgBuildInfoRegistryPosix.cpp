// POSIX companion of DbgBuildInfoRegistry: the loaded shared libraries are the
// named objects that dl_iterate_phdr reports (the program itself has no name).
#include <base/dbgBuildInfoRegistry.h>

#include <link.h>

namespace Qn {

Vector<std::string> DbgBuildInfoRegistry::performGetLoadedLibraries() {
    Vector<std::string> paths;
    dl_iterate_phdr(
        [](dl_phdr_info* info, size_t, void* data) {
            if (info->dlpi_name != nullptr && info->dlpi_name[0] != '\0')
                static_cast<Vector<std::string>*>(data)->emplace_back(info->dlpi_name);
            return 0;
        },
        &paths);
    return paths;
}

}  // namespace Qn
