// POSIX companion of LgSink: provides the opening of log files and their names
// in the native form (the library's backslashes become slashes, a drive prefix
// names the root). Other processes may open the same file at any time.
#include <base/lgSink.h>

#include <fstream>

#include <base/osNativePath.h>

namespace Qn {

void LgSink::performOpen(std::ofstream& stream, const char* name, bool append) {
    stream.open(OsNativePath(name).c_str(), append ? std::ios::app : std::ios::trunc);
}

std::string LgSink::performPlatformName(const char* name) { return OsNativePath(name).c_str(); }

}  // namespace Qn
