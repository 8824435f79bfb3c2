// Qn::DbgBuildInfoRegistry: the build and version of the application and of each
// library loaded in the process, and the rules that check them together.
//
// libQNbase is always the first entry. A library registers when it is loaded,
// with a static DbgBuildInfoRegistration in one of its source files, which
// records its build stamp and the libQNbase version of the headers it was
// compiled with; the application does the same with the Application kind:
//
//   static Qn::DbgBuildInfoRegistration buildInfo("libQNrender", Qn::DbgVersion(2, 3, 1));
//   static Qn::DbgBuildInfoRegistration app("qnviewer", Qn::DbgVersion(1, 0, 0),
//                                           Qn::DbgBuildInfo::Application);
//
// Registering never fails; validate() reports the first entry that breaks a
// rule, in registration order, with a DbgBuildInfoEx exception:
//  1. every name is non-empty (ExInvalidName) and no part of a version is
//     negative (ExInvalidVersion); no two entries share a name
//     (ExDuplicateLibrary: one library loaded twice, from two places say), and
//     at most one is the application (ExDuplicateApplication);
//  2. the libQNbase version each module was compiled against is compatible
//     with the loaded libQNbase (DbgVersion::isCompatibleWith;
//     ExVersionMismatch);
//  3. with stamp checking only: every stamp reads as a date and time
//     (ExInvalidStamp), no library was built before libQNbase and the
//     application was built after every library (ExStaleBuild). A stamp is
//     when the registering source file was compiled, read as the local time
//     of the machine that compiled it, so the check suits a developer's own
//     builds and is off unless asked for.
// The "debugging" package validates at start-up (initialize()) as the
// environment says:
//   QN_BUILDINFO_NO_VALIDATE    set (and not "0" or "false"): no validation;
//   QN_BUILDINFO_CHECK_STAMPS   set (and not "0" or "false"): rule 3 applies too.
//
// Thread-safe: libraries may be loaded and unloaded on any thread.
#pragma once

#include <iosfwd>
#include <mutex>
#include <optional>
#include <string>

#include <base/dbgBuildInfo.h>
#include <base/vector.h>

namespace Qn {

class QN_BASE_API DbgBuildInfoRegistry {
  public:
    // The registry of the process; libQNbase is in it from the start.
    static DbgBuildInfoRegistry& getInstance();
    // A registry of its own whose first entry is the given libQNbase.
    explicit DbgBuildInfoRegistry(const DbgBuildInfo& base);
    DbgBuildInfoRegistry(const DbgBuildInfoRegistry&) = delete;
    DbgBuildInfoRegistry& operator=(const DbgBuildInfoRegistry&) = delete;

    // Appends an entry; never checks it (validate does).
    void add(const DbgBuildInfo& info);
    // Removes the latest entry of that name (not libQNbase's); false when none.
    bool remove(const char* name);
    // A copy of the entries, libQNbase first, then in registration order.
    Vector<DbgBuildInfo> getEntries() const;
    // The latest entry of that name.
    std::optional<DbgBuildInfo> find(const char* name) const;

    // Applies the rules above (rule 3 when checkStamps) and raises the first
    // violation.
    void validate(bool checkStamps) const;
    // Writes "Registered versioned libraries:" and a line per entry:
    // "  <name> <version>[ application] built <stamp> against libQNbase <version>".
    void printRegistered(std::ostream& stream) const;

    // The start-up work of the "debugging" package: validates the registry of
    // the process as the environment variables above say.
    static void initialize();
    // Writes "Loaded Libraries:" and a line "  <path>" per shared library the
    // process has loaded (the program itself is not listed). Raises
    // ExSysErrorNative when the system cannot list them.
    static void printLoadedLibraries(std::ostream& stream);
    // Both lists, loaded then registered, for the registry of the process.
    static void dumpLibs(std::ostream& stream);

  private:
    // The paths of the shared libraries loaded in the process.
    static Vector<std::string> performGetLoadedLibraries();

    mutable std::mutex _mutex;
    Vector<DbgBuildInfo> _entries;
};

// Registers the module that constructs it while it lives (a library from load
// to unload). The stamp and libQNbase version default to those of the source
// file that constructs it.
class DbgBuildInfoRegistration {
  public:
    DbgBuildInfoRegistration(const char* name, DbgVersion version,
                             DbgBuildInfo::Kind kind = DbgBuildInfo::Library,
                             const char* stamp = QN_BUILD_STAMP,
                             DbgVersion baseVersion = QN_BASE_VERSION)
        : _name(name != nullptr ? name : "") {
        DbgBuildInfoRegistry::getInstance().add(
            DbgBuildInfo(name, version, stamp, baseVersion, kind));
    }
    ~DbgBuildInfoRegistration() { DbgBuildInfoRegistry::getInstance().remove(_name.c_str()); }
    DbgBuildInfoRegistration(const DbgBuildInfoRegistration&) = delete;
    DbgBuildInfoRegistration& operator=(const DbgBuildInfoRegistration&) = delete;

  private:
    std::string _name;
};

}  // namespace Qn
