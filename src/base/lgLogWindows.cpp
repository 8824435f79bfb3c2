// Windows companion of LgLog: provides the opening of log files (the runtime
// opens them shared for reading and writing by other processes) and the local
// time of the banner (localtime_s).
#include <base/lgLog.h>

#include <ctime>
#include <fstream>

namespace Qn {

std::unique_ptr<std::ofstream> LgLog::performOpen(const char* fileName, bool append) {
    return std::make_unique<std::ofstream>(fileName, append ? std::ios::app : std::ios::trunc);
}

std::tm LgLog::performLocalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_s(&local, &now);
    return local;
}

}  // namespace Qn
