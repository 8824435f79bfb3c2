// POSIX companion of the system-error exceptions: provides
// ExSysError::getErrnoText with the thread-safe strerror_r and ExSysErrorPosix.
#include <base/exSysErrorPosix.h>

#include <cstring>

namespace Qn {

namespace {

// strerror_r comes in two flavours: XSI returns a status, GNU a text pointer.
[[maybe_unused]] const char* errnoText(int status, const char* buffer) {
    return status == 0 ? buffer : "Unknown error";
}
[[maybe_unused]] const char* errnoText(const char* text, const char*) { return text; }

}  // namespace

void ExSysError::getErrnoText(int error, char* out, size_t size) {
    if (size == 0) return;
    char buffer[256];
    buffer[0] = '\0';
    const char* text = errnoText(strerror_r(error, buffer, sizeof buffer), buffer);
    std::strncpy(out, text, size - 1);
    out[size - 1] = '\0';
}

ExSysErrorPosix::ExSysErrorPosix(const char* fileName, int lineNo, int error)
    : ExBase(fileName, lineNo), ExSysError(fileName, lineNo) {
    setFromErrno(error);
}

ExBase* ExSysErrorPosix::clone() const { return new ExSysErrorPosix(*this); }

}  // namespace Qn
