#include <base/trace.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <sstream>
#include <string>

#include <base/assertions.h>
#include <base/exBase.h>
#include <base/traceManager.h>
#include <base/traceOptions.h>

namespace Qn {

namespace {

// Writes text left-aligned in a field of width characters, cut when longer,
// without touching the stream's formatting state.
void writeField(std::ostream& out, const char* text, size_t width) {
    const size_t length = std::min(std::strlen(text), width);
    out.write(text, static_cast<std::streamsize>(length));
    for (size_t i = length; i < width; ++i) out.put(' ');
}

void writeLevelTable(std::ostream& out, const TraceOptions& options) {
    constexpr size_t nameWidth = 30;
    out << "\nRegistered trace levels:\n\n";
    for (const auto& entry : options.getLevels()) {
        const TraceLevel& level = *entry.second;
        out << (level.isEnabled() ? "X " : "  ");
        writeField(out, level.getName(), nameWidth);
        out << ' ';
        bool first = true;
        for (const char* fileName : level.getFileNames()) {
            if (!first) {
                out << '\n';
                writeField(out, "", nameWidth + 3);
            }
            out << options.shortenFileName(fileName);
            first = false;
        }
        out << '\n';
    }
    out << '\n';
}

void handToManager(const std::ostringstream& line) {
    TraceManager::getInstance().print(line.str().c_str());
}

}  // namespace

TraceLevel& Trace::MainTraceLevel = Trace::registerLevel("Main", __FILE__);

Trace::~Trace() = default;

void Trace::printPrefix(std::ostream&) const {}

TraceLevel& Trace::registerLevel(const char* name, const char* fileName) {
    QN_ASSERT(name);
    TraceLevel& level = TraceOptions::instance().findOrCreateLevel(name);
    if (fileName) level.addFileName(fileName);
    return level;
}

void Trace::setOptions(const char* options) { TraceOptions::getInstance().apply(options); }

bool Trace::isEnabled(const TraceLevel& level) {
    return TraceOptions::getInstance().isOn() && level.isEnabled();
}

void Trace::printLevels(std::ostream& out) { writeLevelTable(out, TraceOptions::getInstance()); }

void Trace::writePrefix(std::ostream& out, TraceOptions& options, const char* fileName,
                        int lineNo) const {
    if (options.takeFirstPrefix() && options.isPrintLevels()) writeLevelTable(out, options);
    if (options.isPid()) writeField(out, options.getPidText(), 10);
    if (options.isPrefix()) printPrefix(out);
    if (options.isLine()) {
        writeField(out, options.shortenFileName(fileName),
                   static_cast<size_t>(options.getFnWidth()));
        char number[16];
        std::snprintf(number, sizeof number, " (%4d) ", lineNo);
        out << number;
    }
    if (_depth >= 1 && options.isIndent()) {
        out.put(' ');
        for (int i = 1; i < _depth; ++i) out.put(i % 2 == 0 ? '|' : ' ');
    }
}

void Trace::writeLineStart(std::ostream& out, TraceOptions& options, const char* fileName,
                           int lineNo) const {
    writePrefix(out, options, fileName, lineNo);
    if (options.isIndent()) out << "| ";
}

std::ostream& Trace::log(std::ostream& out, const char* fileName, int lineNo) const {
    writeLineStart(out, TraceOptions::getInstance(), fileName, lineNo);
    return out;
}

void Trace::print(std::ostream& out, const char* fileName, int lineNo, const char* format,
                  ...) const {
    TraceOptions& options = TraceOptions::getInstance();
    static char buffer[4096];
    buffer[0] = '\0';
    if (format) {
        va_list arguments;
        va_start(arguments, format);
        std::vsnprintf(buffer, sizeof buffer, format, arguments);
        va_end(arguments);
    }
    writeLineStart(out, options, fileName, lineNo);
    out << buffer;
}

void Trace::printException(const ExBase& exception, const char* fileName, int lineNo) {
    TraceOptions& options = TraceOptions::getInstance();
    if (!options.isOn() || !options.findOrCreateLevel("Exceptions").isEnabled()) return;
    std::string description = exception.getDetailedReason();
    std::replace(description.begin(), description.end(), '\n', ' ');
    const Trace tracer;
    std::ostringstream line;
    tracer.writeLineStart(line, options, fileName, lineNo);
    line << "Throwing exception " << description;
    handToManager(line);
}

Trace::Entry::Entry(Trace& tracer, const TraceLevel& level, const char* functionName,
                    const char* fileName, int lineNo)
    : _tracer(tracer),
      _fileName(fileName),
      _lineNo(lineNo),
      _functionName(functionName ? functionName : ""),
      _active(Trace::isEnabled(level)) {
    if (!_active) return;
    TraceOptions& options = TraceOptions::instance();
    std::ostringstream line;
    _tracer.writePrefix(line, options, _fileName, _lineNo);
    _indented = options.isIndent();
    if (_indented) {
        line << "+ " << _functionName;
        _tracer._depth += 2;
    } else {
        line << ">>> " << _functionName;
    }
    handToManager(line);
}

Trace::Entry::~Entry() {
    if (!_active) return;
    std::ostringstream line;
    _tracer.writePrefix(line, TraceOptions::instance(), _fileName, _lineNo);
    if (_indented) {
        line << '/';
        _tracer._depth -= 2;
    } else {
        line << "<<< " << _functionName;
    }
    handToManager(line);
}

}  // namespace Qn
