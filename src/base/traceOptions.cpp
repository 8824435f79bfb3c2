#include <base/traceOptions.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include <base/exBase.h>
#include <base/exInternalError.h>
#include <base/inEnv.h>
#include <base/inOptionParser.h>
#include <base/inValueText.h>
#include <base/osProcess.h>

namespace Qn {

namespace {

const char defaultOptions[] = "show=Main,show=Exceptions";

// The keywords, in the order of the Keyword values.
const char* const keywords[] = {"off",    "noline",       "show",        "hide",     "noindent",
                                "fndirs", "fnwidth",      "printlevels", "line",     "indent",
                                "on",     "writeprotect", "prefix",      "noprefix", "reset",
                                "pid",    "nopid",        nullptr};

enum Keyword {
    Off,
    NoLine,
    Show,
    Hide,
    NoIndent,
    FnDirs,
    FnWidth,
    PrintLevels,
    Line,
    Indent,
    On,
    WriteProtect,
    Prefix,
    NoPrefix,
    Reset,
    Pid,
    NoPid
};

constexpr int defaultFnWidth = 20;
// Wider fields only pad lines with blanks; this keeps a mistyped width from
// making every trace line megabytes long.
constexpr int largestFnWidth = 4096;

[[noreturn]] void raiseUnknownToken(const char* token) {
    char reason[ExBase::ReasonSize];
    std::snprintf(reason, sizeof reason, "Unknown token \"%.*s\" in trace options.",
                  ExBase::ArgPrecision, token);
    throw ExInternalError(__FILE__, __LINE__, reason);
}

// Applies options with apply; stops at the first unknown keyword and returns
// it, or returns false when every keyword was known.
template <class Apply>
bool parseOptions(const char* options, std::string& unknown, Apply&& apply) {
    if (!options) return false;
    std::string text(options);  // the parser cuts the entries in place
    char* rest = text.data();
    char* value = nullptr;
    for (;;) {
        const int keyword = InOptionParser::getSubOption(&rest, keywords, &value);
        if (keyword >= 0) {
            apply(keyword, value);
        } else if (value) {
            unknown = value;
            return true;
        } else {
            return false;
        }
    }
}

}  // namespace

TraceOptions& TraceOptions::instance() {
    static TraceOptions options;
    return options;
}

TraceOptions& TraceOptions::getInstance() {
    TraceOptions& options = instance();
    if (options._hasEnvironmentError) {
        options._hasEnvironmentError = false;
        raiseUnknownToken(options._environmentError.c_str());
    }
    return options;
}

TraceOptions::TraceOptions() {
    setDefaults();
    // The field holds 9 digits, more than any process id the systems hand out.
    char pid[24];
    std::snprintf(pid, sizeof pid, "%lu", static_cast<unsigned long>(OsProcess::getCurrentId()));
    std::snprintf(_pidText, sizeof _pidText, "%.9s", pid);
    apply(defaultOptions);
    _hasEnvironmentError =
        parseOptions(InEnv::getText("QN_TRACE_OPTIONS"), _environmentError,
                     [this](int keyword, const char* value) { applyKeyword(keyword, value); });
}

void TraceOptions::setDefaults() {
    _on = true;
    _prefix = true;
    _line = false;
    _pid = false;
    _indent = true;
    _fnDirs = 0;
    _fnWidth = defaultFnWidth;
    _printLevels = false;
    _writeProtected = false;
    _allLevels = AllLevelsAsMade;
}

void TraceOptions::apply(const char* options) {
    std::string unknown;
    if (parseOptions(options, unknown,
                     [this](int keyword, const char* value) { applyKeyword(keyword, value); }))
        raiseUnknownToken(unknown.c_str());
}

void TraceOptions::applyKeyword(int keyword, const char* value) {
    if (_writeProtected && keyword != PrintLevels && keyword != WriteProtect) return;
    switch (keyword) {
        case Off:
            _on = false;
            break;
        case NoLine:
            _line = false;
            break;
        case Show:
            switchLevel(value, true);
            break;
        case Hide:
            switchLevel(value, false);
            break;
        case NoIndent:
            _indent = false;
            break;
        case FnDirs:
            if (value) _fnDirs = std::max(InValueText::toInt(value), 0);
            break;
        case FnWidth:
            if (value) {
                const int width = InValueText::toInt(value);
                _fnWidth = width < 0 ? defaultFnWidth : std::min(width, largestFnWidth);
            }
            break;
        case PrintLevels:
            _printLevels = true;
            break;
        case Line:
            _line = true;
            break;
        case Indent:
            _indent = true;
            break;
        case On:
            _on = true;
            break;
        case WriteProtect:
            _writeProtected = true;
            break;
        case Prefix:
            _prefix = true;
            break;
        case NoPrefix:
            _prefix = false;
            break;
        case Reset:
            setDefaults();
            for (auto& entry : _levels) entry.second->setEnabled(false);
            apply(defaultOptions);
            break;
        case Pid:
            _pid = true;
            break;
        case NoPid:
            _pid = false;
            break;
    }
}

void TraceOptions::switchLevel(const char* value, bool enabled) {
    if (!value) return;
    if (std::strcmp(value, "all") != 0) {
        findOrCreateLevel(value).setEnabled(enabled);
        return;
    }
    for (auto& entry : _levels) entry.second->setEnabled(enabled);
    _allLevels = enabled ? AllLevelsShown : AllLevelsHidden;
}

TraceLevel& TraceOptions::findOrCreateLevel(const char* name) {
    const auto found = _levels.find(name);
    if (found != _levels.end()) return *found->second;
    auto level = std::make_unique<TraceLevel>(name, _allLevels == AllLevelsShown);
    TraceLevel& made = *level;
    _levels.emplace(made.getName(), std::move(level));
    return made;
}

const char* TraceOptions::shortenFileName(const char* fileName) const {
    if (!fileName) return "";
    long long components = static_cast<long long>(_fnDirs) + 1;
    for (const char* at = fileName + std::strlen(fileName); at != fileName;) {
        if (*--at == '/' && --components == 0) return at + 1;
    }
    return fileName;
}

bool TraceOptions::takeFirstPrefix() {
    const bool first = !_prefixWritten;
    _prefixWritten = true;
    return first;
}

}  // namespace Qn
