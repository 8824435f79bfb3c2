// POSIX companion of OsNativePath: the mapping of Windows-form paths onto the
// native file system (every drive letter names the root "/").
#include <base/osNativePath.h>

#include <sys/stat.h>

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

unsigned OsNativePath::getMode(const OsFileTypes::Permissions& permissions, bool directory) {
    using P = OsFileTypes::Permissions;
    // One class of users (shift 6 for the owner, 3 for the group, 0 for others).
    auto bits = [directory](uint32_t mask, int shift) {
        unsigned mode = 0;
        if (mask & P::Read) mode |= directory ? 5u : 4u;
        if (mask & P::Write) mode |= 2u;
        return mode << shift;
    };
    static_assert(S_IRUSR == 0400 && S_IWUSR == 0200 && S_IXUSR == 0100);
    return bits(permissions.owner, 6) | bits(permissions.group, 3) | bits(permissions.others, 0);
}

}  // namespace Qn
