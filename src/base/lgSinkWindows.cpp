// Windows companion of LgSink: provides the opening of log files (the runtime
// opens them shared for reading and writing by other processes) and their
// names, which are in the platform's form already.
#include <base/lgSink.h>

#include <fstream>

namespace Qn {

void LgSink::performOpen(std::ofstream& stream, const char* name, bool append) {
    stream.open(name, append ? std::ios::app : std::ios::trunc);
}

std::string LgSink::performPlatformName(const char* name) { return name; }

}  // namespace Qn
