#include <support/testPackage.h>

namespace QnTest {

std::vector<std::string>& packageLog() {
    static std::vector<std::string> log;
    return log;
}

std::vector<std::string> packageLogLines(const std::string& prefix) {
    std::vector<std::string> lines;
    for (const std::string& line : packageLog())
        if (line.compare(0, prefix.size(), prefix) == 0) lines.push_back(line);
    return lines;
}

}  // namespace QnTest
