// Windows companion of OsDirectory: provides the enumeration of a directory's
// entries (FindFirstFileA, FindNextFileA).
#include <base/osDirectory.h>

#include <windows.h>

#include <base/exSysErrorWindows.h>

namespace Qn {

void OsDirectory::performEnumerate(const std::function<bool(const char* name)>& visit) const {
    OsFilePath pattern = getPath() + "*";
    WIN32_FIND_DATAA entry;
    HANDLE find = FindFirstFileA(pattern.getText(), &entry);
    if (find == INVALID_HANDLE_VALUE) {
        if (GetLastError() == ERROR_NO_MORE_FILES) return;
        throw ExSysErrorWindows(__FILE__, __LINE__);
    }
    struct Closer {
        HANDLE find;
        ~Closer() { FindClose(find); }
    } closer{find};
    do {
        if (!visit(entry.cFileName)) return;
    } while (FindNextFileA(find, &entry));
    if (GetLastError() != ERROR_NO_MORE_FILES) throw ExSysErrorWindows(__FILE__, __LINE__);
}

}  // namespace Qn
