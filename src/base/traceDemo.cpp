#include <base/traceDemo.h>

#include <sstream>

#include <base/exInternalError.h>
#include <base/trace.h>
#include <base/traceManager.h>

namespace Qn {

namespace {

TraceLevel& demoLevel = Trace::registerLevel("Demo", __FILE__);

// A free-form line at the tracer's depth, through the trace manager.
void note(const Trace& tracer, const TraceLevel& level, int lineNo, const char* text) {
    if (!Trace::isEnabled(level)) return;
    std::ostringstream line;
    tracer.log(line, __FILE__, lineNo) << text;
    TraceManager::getInstance().print(line.str().c_str());
}

int readObjects(Trace& tracer, const char* kind, int count) {
    QN_TRACE_SCOPE(tracer, demoLevel);
    note(tracer, demoLevel, __LINE__, kind);
    return count;
}

void checkCamera(Trace& tracer, int cameras) {
    QN_TRACE_SCOPE(tracer, Trace::MainTraceLevel);
    if (cameras > 0) return;
    const ExInternalError missing(__FILE__, __LINE__, "The scene has no camera.");
    Trace::printException(missing, __FILE__, __LINE__);
    throw missing;
}

int loadScene(Trace& tracer) {
    QN_TRACE_SCOPE(tracer, Trace::MainTraceLevel);
    const int objects = readObjects(tracer, "meshes", 12) + readObjects(tracer, "lights", 3);
    checkCamera(tracer, readObjects(tracer, "cameras", 0));
    return objects;
}

void renderFrame(Trace& tracer) {
    QN_TRACE_SCOPE(tracer, Trace::MainTraceLevel);
    try {
        loadScene(tracer);
    } catch (const ExInternalError&) {
        note(tracer, Trace::MainTraceLevel, __LINE__, "rendering with the default camera");
    }
}

}  // namespace

void TraceDemo::traceNestedCalls() {
    Trace tracer;
    renderFrame(tracer);
}

}  // namespace Qn
