// Windows companion of OsFilePath: provides the full-path service
// (GetFullPathNameA), the current drive (_getdrive) and the temporary directory
// (GetTempPathA).
#include <base/osFilePath.h>

#include <direct.h>
#include <windows.h>

#include <base/exSysErrorWindows.h>

namespace Qn {

namespace {

// Raises the system error of a text service that returned length for a buffer
// of SystemBufferSize characters: 0 is a failure, a larger value the size it
// would have needed.
void checkLength(DWORD length, const char* file, int line) {
    if (length == 0) throw ExSysErrorWindows(file, line);
    if (length >= static_cast<DWORD>(OsFilePath::SystemBufferSize)) {
        throw ExSysErrorWindows(file, line, ERROR_FILENAME_EXCED_RANGE);
    }
}

}  // namespace

int OsFilePath::performGetFullPath(const char* path, char* buffer) {
    char* finalComponent = nullptr;
    checkLength(GetFullPathNameA(path, SystemBufferSize, buffer, &finalComponent), __FILE__,
                __LINE__);
    return finalComponent == nullptr ? -1 : static_cast<int>(finalComponent - buffer);
}

int OsFilePath::performGetCurrentDrive() { return _getdrive(); }

OsFilePath OsFilePath::performGetTempDir() {
    char buffer[SystemBufferSize];
    checkLength(GetTempPathA(SystemBufferSize, buffer), __FILE__, __LINE__);
    return OsFilePath(buffer);
}

}  // namespace Qn
