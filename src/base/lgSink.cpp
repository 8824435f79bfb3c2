#include <base/lgSink.h>

#include <fstream>
#include <iostream>

namespace Qn {

namespace {

// Lines reach the system in blocks of this size between flushes.
constexpr size_t FileBufferSize = 64 * 1024;

}  // namespace

LgSink::LgSink(std::string name) : _name(std::move(name)), _out(&std::cout) {}

std::unique_ptr<LgSink> LgSink::standardOutput() {
    return std::unique_ptr<LgSink>(new LgSink("stdout"));
}

std::unique_ptr<LgSink> LgSink::openFile(const char* name, bool append) {
    std::unique_ptr<LgSink> sink(new LgSink(getPlatformName(name)));
    sink->_buffer = std::make_unique<char[]>(FileBufferSize);
    sink->_file = std::make_unique<std::ofstream>();
    sink->_file->rdbuf()->pubsetbuf(sink->_buffer.get(), FileBufferSize);
    performOpen(*sink->_file, name, append);
    sink->_out = sink->_file.get();
    return sink;
}

LgSink::~LgSink() { close(); }

// Straight to the buffer: a line needs none of the stream's formatting state.
void LgSink::write(const char* data, size_t size) {
    _out->rdbuf()->sputn(data, static_cast<std::streamsize>(size));
}

void LgSink::flush() { _out->flush(); }

void LgSink::close() {
    if (_file && _file->is_open()) _file->close();
}

std::string LgSink::getPlatformName(const char* name) { return performPlatformName(name); }

}  // namespace Qn
