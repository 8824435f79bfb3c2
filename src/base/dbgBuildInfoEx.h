// Qn::DbgBuildInfoEx: the failures of build-information validation
// (DbgBuildInfoRegistry::validate).
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API DbgBuildInfoEx : public ExBase {
  public:
    // A module registered with an empty name.
    class ExInvalidName;
    // A version with a negative part (module name, version).
    class ExInvalidVersion;
    // Two modules of one name (the name).
    class ExDuplicateLibrary;
    // Two modules registered as the application (their names).
    class ExDuplicateApplication;
    // A module compiled against a libQNbase version that the loaded one cannot
    // serve (module name, "<built> but <loaded> is loaded").
    class ExVersionMismatch;
    // A build stamp that does not read as a date and time (module name, stamp).
    class ExInvalidStamp;
    // A module built before a module it depends on (each "<name> (built <stamp>)").
    class ExStaleBuild;

  protected:
    DbgBuildInfoEx(const char* file, int line);
};

QN_EX_FORMAT(QN_BASE_API, DbgBuildInfoEx, ExInvalidName, std::invalid_argument,
             "Invalid library name: <%.*s>.");
QN_EX_FORMAT2(QN_BASE_API, DbgBuildInfoEx, ExInvalidVersion, std::invalid_argument,
              "Invalid version of <%.*s>: %.*s.");
QN_EX_FORMAT(QN_BASE_API, DbgBuildInfoEx, ExDuplicateLibrary, std::logic_error,
             "Library registered twice: <%.*s>.");
QN_EX_FORMAT2(QN_BASE_API, DbgBuildInfoEx, ExDuplicateApplication, std::logic_error,
              "Two applications registered: <%.*s> and <%.*s>.");
QN_EX_FORMAT2(QN_BASE_API, DbgBuildInfoEx, ExVersionMismatch, std::runtime_error,
              "Version mismatch: <%.*s> was built against libQNbase %.*s.");
QN_EX_FORMAT2(QN_BASE_API, DbgBuildInfoEx, ExInvalidStamp, std::invalid_argument,
              "Invalid build stamp of <%.*s>: <%.*s>.");
QN_EX_FORMAT2(QN_BASE_API, DbgBuildInfoEx, ExStaleBuild, std::runtime_error,
              "Stale build: %.*s is older than %.*s.");

}  // namespace Qn
