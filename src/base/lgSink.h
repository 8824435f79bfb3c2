// Qn::LgSink: one destination of log lines, a file or the standard output.
// Levels that name the same file share its sink: one stream, one banner.
//
// A sink takes whole lines (prefix, text and end of line in one write) and
// buffers them; flush() pushes them to the system. A file sink is opened
// shared with other processes, which may write the same file under the
// logger's inter-process lock. A file that cannot be opened gives a sink in a
// failed state whose lines are lost.
//
// Thread-safety: one writer at a time (the reader, or the logger at start and
// stop).
#pragma once

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API LgSink {
  public:
    // The standard output (std::cout, whatever its buffer is at write time).
    static std::unique_ptr<LgSink> standardOutput();
    // The file of that name in the library's path form, appended to or
    // truncated.
    static std::unique_ptr<LgSink> openFile(const char* name, bool append);

    ~LgSink();
    LgSink(const LgSink&) = delete;
    LgSink& operator=(const LgSink&) = delete;

    // The file name as the platform writes it (on POSIX with slashes and
    // without a drive prefix), or "stdout".
    const char* getName() const { return _name.c_str(); }
    std::ostream& getStream() { return *_out; }

    void write(const char* data, size_t size);
    void flush();
    // Flushes and closes a file; later writes are lost.
    void close();

    // A path of the library's form as the platform writes it.
    static std::string getPlatformName(const char* name);

  private:
    explicit LgSink(std::string name);
    // Opens stream on the file, shared with other processes.
    static void performOpen(std::ofstream& stream, const char* name, bool append);
    static std::string performPlatformName(const char* name);

    std::string _name;
    // The file's buffer outlives its stream.
    std::unique_ptr<char[]> _buffer;
    std::unique_ptr<std::ofstream> _file;
    std::ostream* _out;
};

}  // namespace Qn
