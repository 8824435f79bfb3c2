#include <support/childProcess.h>

#include <cstdio>

#if defined(_WIN32)
#define popen _popen
#define pclose _pclose
#else
#include <sys/wait.h>
#endif

namespace QnTest {

ChildResult runChild(const std::string& commandLine) {
    ChildResult result;
    std::FILE* pipe = popen(commandLine.c_str(), "r");
    if (!pipe) return result;
    char buffer[4096];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) result.output.append(buffer, n);
    int status = pclose(pipe);
#if defined(_WIN32)
    result.status = status;
#else
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
    return result;
}

std::string testProgramPath(const std::string& name) {
#if defined(_WIN32)
    return std::string(QN_TEST_BINARY_DIR) + "/" + name + ".exe";
#else
    return std::string(QN_TEST_BINARY_DIR) + "/" + name;
#endif
}

}  // namespace QnTest
