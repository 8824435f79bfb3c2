// Qn::ExSysError: a failure reported by the runtime library or the operating
// system, with the system's error number. Concrete classes: ExSysErrorANSI
// (errno of the runtime library), ExSysErrorPosix and ExSysErrorWindows (the
// operating system's error); portable code catches ExSysErrorNative
// (exSysErrorNative.h), which names the class of the platform being built.
#pragma once

#include <cstddef>
#include <stdexcept>

#include <base/exBase.h>

namespace Qn {

class QN_BASE_API ExSysError : public virtual ExBase, public std::runtime_error {
  public:
    // The system error number.
    int getError() const { return _error; }
    const char* what() const noexcept override;

    // Writes the runtime library's text for an errno value (strerror's text) into
    // out; safe to call from several threads.
    static void getErrnoText(int error, char* out, size_t size);

  protected:
    ExSysError(const char* fileName, int lineNo);

    void setError(int error) { _error = error; }
    // Stores error and makes the runtime library's text for it the reason.
    void setFromErrno(int error);
    // Removes a line end from a system message: each of its last two characters
    // that is a carriage return or a line feed becomes the end of the text.
    static void trimLineEnd(char* text);

  private:
    int _error = 0;
};

}  // namespace Qn
