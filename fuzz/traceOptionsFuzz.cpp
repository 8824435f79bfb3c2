// Feeds arbitrary option strings to the trace facility, then traces a scope
// and a line with the options they left. Only the internal error of an unknown
// keyword may escape; anything else (another exception, a crash, a sanitizer
// report) is a finding.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include <base/exInternalError.h>
#include <base/trace.h>
#include <base/traceManager.h>

namespace {

// Takes the lines so that the run does not fill the standard output.
class Sink : public Qn::TraceManager {
  public:
    Sink() : TraceManager(1) {}
    void print(const char* line) override { characters += std::char_traits<char>::length(line); }
    size_t characters = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Sink sink;
    static Qn::TraceLevel& level =
        Qn::Trace::registerLevel("Fuzz", "fuzz/a/b/traceOptionsFuzz.cpp");
    const std::string options(reinterpret_cast<const char*>(data), size);
    Qn::Trace::setOptions("reset");
    try {
        Qn::Trace::setOptions(options.c_str());
    } catch (const Qn::ExInternalError&) {
    }
    Qn::Trace tracer;
    {
        QN_TRACE_SCOPE(tracer, level);
        std::ostringstream line;
        tracer.print(line, "fuzz/a/b/traceOptionsFuzz.cpp", 42, "%s", options.c_str());
        Qn::Trace::printLevels(line);
    }
    return 0;
}
