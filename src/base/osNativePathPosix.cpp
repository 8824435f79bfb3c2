// POSIX companion of OsNativePath: the mapping of Windows-form paths onto the
// native file system (every drive letter names the root "/").
#include <base/osNativePath.h>

namespace Qn {

OsNativePath::OsNativePath(const char* path) {
    if (path[0] != '\0' && path[1] == ':') {
        path += 2;
        if (path[0] == '\0') path = ".";
    }
    _native = path;
    for (char& c : _native) {
        if (c == '\\') c = '/';
    }
}

}  // namespace Qn
