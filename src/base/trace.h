// Qn::Trace: indented call traces and free-form trace lines, filtered by named
// levels (TraceLevel) and controlled by the trace options (traceOptions.h,
// QN_TRACE_OPTIONS).
//
// A client owns a tracer, which keeps the call depth, and registers its levels.
// A scope entry writes an "enter" line when made and a "leave" line when
// destroyed; finished lines go to the current TraceManager (the standard
// output by default).
//
//   static Qn::TraceLevel& ioLevel = Qn::Trace::registerLevel("Io", __FILE__);
//   Qn::Trace tracer;
//
//   void readScene() {
//       QN_TRACE_SCOPE(tracer, ioLevel);     // "+ readScene" ... "/"
//       if (Qn::Trace::isEnabled(ioLevel))
//           tracer.print(std::cout, __FILE__, __LINE__, "%d objects\n", count);
//   }
//
// With the default options a line is the indentation, then the text:
//
//   + readScene
//     | 12 objects
//     /
//
// "line" adds the file (shortened, in a field of fnwidth) and the line number,
// "pid" the process id, "noindent" writes ">>> f" and "<<< f" instead.
//
// Thread-safety: none. A tracer and its entries belong to one thread; entries
// are destroyed in reverse order of construction. print() formats into one
// static buffer, so concurrent calls must be serialised by the callers.
#pragma once

#include <iosfwd>

#include <base/qnExport.h>
#include <base/traceLevel.h>

#if defined(__MINGW32__)
#define QN_TRACE_PRINTF(formatIndex, firstArg) \
    __attribute__((format(gnu_printf, formatIndex, firstArg)))
#else
#define QN_TRACE_PRINTF(formatIndex, firstArg) \
    __attribute__((format(printf, formatIndex, firstArg)))
#endif

namespace Qn {

class ExBase;
class TraceOptions;

class QN_BASE_API Trace {
  public:
    class Entry;

    // The level named "Main", shown by default. Bound while the library loads.
    static TraceLevel& MainTraceLevel;

    Trace() = default;
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;
    virtual ~Trace();

    // Writes the tracer's own part of each line's prefix (when the "prefix"
    // option is on); the base writes nothing.
    virtual void printPrefix(std::ostream& out) const;

    // The level of that name, made when it does not exist yet (enabled when
    // "show=all" is in force); appends fileName (kept, not copied; may be null)
    // to the level's registering files. Never raises for the options, so it can
    // run in static initialisers; a null name raises ExInternalError.
    static TraceLevel& registerLevel(const char* name, const char* fileName);
    // Applies an option string (see traceOptions.h); null does nothing. Raises
    // ExInternalError "Unknown token "<keyword>" in trace options.".
    static void setOptions(const char* options);
    // Whether tracing is on and level is enabled.
    static bool isEnabled(const TraceLevel& level);
    // Writes the table of registered levels: "X " before the enabled ones, the
    // name in a field of 30, then the registering files.
    static void printLevels(std::ostream& out);

    // Writes the line prefix and, when indenting, "| ": the caller writes the
    // text and the end of line. Returns out.
    std::ostream& log(std::ostream& out, const char* fileName, int lineNo) const;
    // The same, followed by the printf-formatted text (cut at 4095 characters).
    void print(std::ostream& out, const char* fileName, int lineNo, const char* format, ...) const
        QN_TRACE_PRINTF(5, 6);
    // When tracing is on and the level "Exceptions" is enabled, hands the
    // manager the line "Throwing exception " and the exception's detailed
    // reason (the line break after its type, file and line becomes a blank).
    static void printException(const ExBase& exception, const char* fileName, int lineNo);

    // The call depth: 2 per open entry when indenting.
    int getDepth() const { return _depth; }

  private:
    // The line prefix: the level table before the first prefix ever (with
    // "printlevels"), the process id, printPrefix, the file and line, and the
    // indentation of the current depth.
    void writePrefix(std::ostream& out, TraceOptions& options, const char* fileName,
                     int lineNo) const;
    // The prefix and "| " when indenting.
    void writeLineStart(std::ostream& out, TraceOptions& options, const char* fileName,
                        int lineNo) const;

    int _depth = 0;
};

// Traces one scope: when the options are on and the level is enabled at
// construction, hands the manager "+ function" (or ">>> function" without
// indentation) and deepens the tracer; its destruction hands the manager "/"
// (or "<<< function") and restores the depth. An inactive entry writes nothing.
class QN_BASE_API Trace::Entry {
  public:
    // The texts are kept, not copied: they must outlive the entry.
    Entry(Trace& tracer, const TraceLevel& level, const char* functionName, const char* fileName,
          int lineNo);
    ~Entry();
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

  private:
    Trace& _tracer;
    const char* _fileName;
    int _lineNo;
    const char* _functionName;
    bool _active;
    // Whether the enter line indented, so that the leave line restores the
    // depth even if the options changed in between.
    bool _indented = false;
};

}  // namespace Qn

#define QN_TRACE_JOIN_(a, b) a##b
#define QN_TRACE_NAME_(line) QN_TRACE_JOIN_(qnTraceEntry, line)
// Traces the enclosing scope with tracer at level, naming the current
// function, file and line.
#define QN_TRACE_SCOPE(tracer, level) \
    ::Qn::Trace::Entry QN_TRACE_NAME_(__LINE__)((tracer), (level), __func__, __FILE__, __LINE__)
