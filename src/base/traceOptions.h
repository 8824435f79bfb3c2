// Qn::TraceOptions: the process-wide settings of the trace facility and its
// table of levels.
//
// The object is made by the first trace operation: the defaults below are set,
// then "show=Main,show=Exceptions" is applied, then the value of
// QN_TRACE_OPTIONS. An option string is a comma-separated list of keywords and
// keyword=value pairs, applied in order (later ones win):
//
//   on, off            trace at all (default on)
//   prefix, noprefix   call the tracer's printPrefix (default on)
//   line, noline       file and line in each prefix (default off)
//   pid, nopid         process id in each prefix (default off)
//   indent, noindent   indent by call depth (default on)
//   fndirs=N           directories kept before the file name (default 0;
//                      negative gives 0)
//   fnwidth=N          width of the file name field (default 20; negative
//                      gives 20, more than 4096 gives 4096)
//   show=L, hide=L     enable or disable level L (made if needed); L = all
//                      switches every level, and levels made later follow
//   printlevels        print the level table before the first trace line
//   reset              defaults back, every level off, then the default string
//   writeprotect       ignore every later option but printlevels
//
//   QN_TRACE_OPTIONS="hide=all,show=Io,line,fndirs=1" ./program
//
// An unknown keyword stops parsing with ExInternalError "Unknown token
// "<keyword>" in trace options."; when it comes from QN_TRACE_OPTIONS, the first
// trace operation other than a level's registration raises it, once.
//
// No lock: options are meant to be set at start-up, on one thread.
#pragma once

#include <cstring>
#include <map>
#include <string>

#include <base/objPtr.h>
#include <base/qnExport.h>
#include <base/traceLevel.h>

namespace Qn {

class QN_BASE_API TraceOptions {
  public:
    // What levels made from now on start as.
    enum AllLevels { AllLevelsAsMade = 0, AllLevelsShown = 1, AllLevelsHidden = 2 };

    struct NameLess {
        bool operator()(const char* a, const char* b) const { return std::strcmp(a, b) < 0; }
    };
    // Levels by name, in byte-wise order; the key is the level's own name.
    using LevelTable = std::map<const char*, ObjPtr<TraceLevel>, NameLess>;

    // The options; raises the pending error of QN_TRACE_OPTIONS (see above).
    static TraceOptions& getInstance();

    TraceOptions(const TraceOptions&) = delete;
    TraceOptions& operator=(const TraceOptions&) = delete;

    // Applies an option string; null does nothing. Raises ExInternalError on an
    // unknown keyword, after applying the options before it.
    void apply(const char* options);

    // The level of that name, made (with the state the all-levels switch
    // gives) when there is none.
    TraceLevel& findOrCreateLevel(const char* name);
    const LevelTable& getLevels() const { return _levels; }

    bool isOn() const { return _on; }
    bool isPrefix() const { return _prefix; }
    bool isLine() const { return _line; }
    bool isPid() const { return _pid; }
    bool isIndent() const { return _indent; }
    int getFnDirs() const { return _fnDirs; }
    int getFnWidth() const { return _fnWidth; }
    bool isPrintLevels() const { return _printLevels; }
    bool isWriteProtected() const { return _writeProtected; }
    AllLevels getAllLevels() const { return _allLevels; }
    // The process id as decimal text.
    const char* getPidText() const { return _pidText; }

    // The last fndirs+1 components of fileName, counting only "/" as a
    // separator; a pointer into fileName.
    const char* shortenFileName(const char* fileName) const;
    // True for the first prefix ever written in the process, false afterwards.
    bool takeFirstPrefix();

  private:
    friend class Trace;

    TraceOptions();
    // The options as made, without raising: for level registration, which
    // runs from static initialisers where an exception would end the program.
    static TraceOptions& instance();

    void setDefaults();
    void applyKeyword(int keyword, const char* value);
    void switchLevel(const char* value, bool enabled);

    LevelTable _levels;
    bool _on;
    bool _prefix;
    bool _line;
    bool _pid;
    bool _indent;
    int _fnDirs;
    int _fnWidth;
    bool _printLevels;
    bool _writeProtected;
    AllLevels _allLevels;
    char _pidText[10];
    bool _prefixWritten = false;
    // The unknown keyword of QN_TRACE_OPTIONS, until it is raised.
    std::string _environmentError;
    bool _hasEnvironmentError = false;
};

}  // namespace Qn
