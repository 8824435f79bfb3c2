// POSIX companion of OsDirectory: provides the enumeration of a directory's
// entries (opendir, readdir).
#include <base/osDirectory.h>

#include <dirent.h>

#include <cerrno>

#include <base/exSysErrorPosix.h>
#include <base/osNativePath.h>

namespace Qn {

void OsDirectory::performEnumerate(const std::function<bool(const char* name)>& visit) const {
    DIR* stream = ::opendir(OsNativePath(getPath().getText()).c_str());
    if (stream == nullptr) throw ExSysErrorPosix(__FILE__, __LINE__);
    struct Closer {
        DIR* stream;
        ~Closer() { ::closedir(stream); }
    } closer{stream};
    for (;;) {
        errno = 0;
        dirent* entry = ::readdir(stream);
        if (entry == nullptr) {
            if (errno != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
            return;
        }
        if (!visit(entry->d_name)) return;
    }
}

}  // namespace Qn
