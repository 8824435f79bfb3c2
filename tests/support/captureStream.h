// Test aid: captures what is written to a standard stream (std::cout, std::cerr)
// while the object lives.
#pragma once

#include <ostream>
#include <sstream>
#include <string>

namespace QnTest {

class CaptureStream {
  public:
    explicit CaptureStream(std::ostream& stream)
        : _stream(stream), _old(stream.rdbuf(_text.rdbuf())) {}
    ~CaptureStream() { _stream.rdbuf(_old); }
    CaptureStream(const CaptureStream&) = delete;
    CaptureStream& operator=(const CaptureStream&) = delete;

    std::string str() const { return _text.str(); }

  private:
    std::ostream& _stream;
    std::ostringstream _text;
    std::streambuf* _old;
};

}  // namespace QnTest
