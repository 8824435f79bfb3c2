// Windows companion of the system-error exceptions: provides
// ExSysError::getErrnoText with strerror_s and ExSysErrorWindows over
// GetLastError and FormatMessageA.
#include <base/exSysErrorWindows.h>

#include <windows.h>

#include <cstring>

namespace Qn {

void ExSysError::getErrnoText(int error, char* out, size_t size) {
    if (size == 0) return;
    if (strerror_s(out, size, error) != 0) {
        std::strncpy(out, "Unknown error", size - 1);
        out[size - 1] = '\0';
    }
}

ExSysErrorWindows::ExSysErrorWindows(const char* fileName, int lineNo)
    : ExBase(fileName, lineNo), ExSysError(fileName, lineNo) {
    describe(GetLastError());
}

ExSysErrorWindows::ExSysErrorWindows(const char* fileName, int lineNo, unsigned long error)
    : ExBase(fileName, lineNo), ExSysError(fileName, lineNo) {
    describe(error);
}

void ExSysErrorWindows::describe(unsigned long error) {
    char text[ReasonSize];
    text[0] = '\0';
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                   text, sizeof text, nullptr);
    trimLineEnd(text);
    setError(static_cast<int>(error));
    setReason(text);
}

ExBase* ExSysErrorWindows::clone() const { return new ExSysErrorWindows(*this); }

}  // namespace Qn
