// Qn::LgConfig: what a logger is told at start-up, read from the environment.
//
//   S2M_TEST_DIR               log directory, made with its missing parents
//                              (default: the temporary directory)
//   QN_LOG_INTERNAL_ERROR, QN_LOG_FATAL_ERROR, QN_LOG_RECOVERABLE_ERROR,
//   QN_LOG_WARNING, QN_LOG_INFORMATIONAL, QN_LOG_TRACING, QN_LOG_PROFILING
//                              destination of each level: "--..." disables it;
//                              a leading "%" echoes to the standard output, a
//                              leading "+" (or "+" after "%") appends; the rest
//                              is the file name, none when it is empty ("%" is
//                              the standard output alone). Defaults: levels 0
//                              to 4 to events.log in the log directory,
//                              Tracing to the standard output, Profiling to
//                              prof.log there; without a usable log directory
//                              Internal Error and Profiling are disabled.
//   QN_LOG_DEFAULT_LEVEL       default group threshold (a level name; another
//                              text is ignored)
//   QN_LOG_GROUPS              group thresholds, "Main=Tracing,Io=Error"
//   QN_BLOCKING_TRACE          (set) trace producers may wait for room
//   QN_INTERNAL_INTERPROCESS_LOG_LOCK  name of an inter-process lock held
//                              around every line and banner
//   QN_LOG_DISABLE_TIMESTAMPS  (set) lines without the time and thread prefix
//
// read() is a pure function of the variables it is given, so a test passes a
// table instead of the environment (or sets the fields of a default
// configuration); fromEnvironment() reads the start-up snapshot
// (Qn::InInitMgr::getEnv).
//
//   Qn::LgConfig config = Qn::LgConfig::read([](const char* name) -> const char* {
//       return std::strcmp(name, "QN_LOG_WARNING") == 0 ? "%" : nullptr;
//   });
//
// A plain value.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <base/lgTypes.h>

namespace Qn {

class QN_BASE_API LgConfig {
  public:
    // Where one level's lines go.
    struct Destination {
        bool enabled = false;
        // Also to the standard output.
        bool echo = false;
        // Open the file for appending instead of truncating it.
        bool append = false;
        // The file's name; empty for none.
        std::string file;
        // file is a name inside the log directory (the defaults); it is
        // dropped when the directory cannot be made.
        bool inLogDirectory = false;
        // The level is disabled when the log directory cannot be made.
        bool needsLogDirectory = false;
    };

    // The value of a variable, or null when it is not set.
    using Lookup = std::function<const char*(const char* name)>;

    // The configuration when no variable is set.
    LgConfig();

    static LgConfig read(const Lookup& variable);
    static LgConfig fromEnvironment();

    // The value of a level's variable as a destination. REQUIRES: not null.
    static Destination parseDestination(const char* value);

    // Empty: the temporary directory.
    std::string logDirectory;
    Destination levels[LgTypes::NUM_LEVELS];
    std::optional<LgTypes::Level> defaultLevel;
    std::optional<std::string> groups;
    bool blockingTrace = false;
    std::optional<std::string> lockName;
    bool timeStamps = true;
};

}  // namespace Qn
