// POSIX companion of LgLog: provides the opening of log files (paths in the
// library's form mapped to native ones) and the local time of the banner
// (localtime_r).
#include <base/lgLog.h>

#include <ctime>
#include <fstream>

#include <base/osNativePath.h>

namespace Qn {

std::unique_ptr<std::ofstream> LgLog::performOpen(const char* fileName, bool append) {
    return std::make_unique<std::ofstream>(OsNativePath(fileName).c_str(),
                                           append ? std::ios::app : std::ios::trunc);
}

std::tm LgLog::performLocalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}

}  // namespace Qn
