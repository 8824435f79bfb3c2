#include <base/exSysError.h>

#include <cstring>

namespace Qn {

ExSysError::ExSysError(const char* fileName, int lineNo)
    : ExBase(fileName, lineNo), std::runtime_error("") {}

const char* ExSysError::what() const noexcept { return getReason(); }

void ExSysError::setFromErrno(int error) {
    char text[ReasonSize];
    getErrnoText(error, text, sizeof text);
    setError(error);
    setReason(text);
}

void ExSysError::trimLineEnd(char* text) {
    size_t n = std::strlen(text);
    for (size_t back = 1; back <= 2 && back <= n; ++back) {
        char& c = text[n - back];
        if (c == '\r' || c == '\n') c = '\0';
    }
}

}  // namespace Qn
