#include <base/inContextAliasMgrBase.h>

namespace Qn {

InContextAliasMgrBase::ArgStore& InContextAliasMgrBase::args() {
    static ArgStore store;
    return store;
}

const char* InContextAliasMgrBase::getApplicationName() {
    static const std::string name = [] {
        std::string path = performGetExecutablePath();
        const size_t slash = path.find_last_of("/\\");
        if (slash != std::string::npos) path.erase(0, slash + 1);
        static const std::string exe = ".exe";
        if (path.size() > exe.size() &&
            path.compare(path.size() - exe.size(), exe.size(), exe) == 0)
            path.erase(path.size() - exe.size());
        return path;
    }();
    return name.c_str();
}

}  // namespace Qn
