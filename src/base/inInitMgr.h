// Qn::InInitMgr: the process-wide manager of packages.
//
// Packages register while the library is loaded. The host calls initialize()
// once with its command line (or makes an InInitGuard): the manager moves the
// whole command line into the argument store, orders the waiting packages
// (fewest transitive dependencies first, ties by name) and initialises them;
// finalize() finalises them in reverse order. Packages registered after that are
// initialised by a further pass, which only an InReinitGuard may start.
//
// Setting QN_DEBUG_INITIALIZE (to any value) traces registration and the passes
// on the standard error stream. Not thread-safe: used during start-up and
// shutdown on one thread; the manager takes no lock.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <typeinfo>

#include <base/inDependencyMatrix.h>
#include <base/inPackageInit.h>
#include <base/vector.h>

namespace Qn {

class QN_BASE_API InInitMgr {
  public:
    // The manager, made at the first call (by the first package that registers,
    // in practice) and destroyed at process exit.
    static InInitMgr& getInstance();

    InInitMgr(const InInitMgr&) = delete;
    InInitMgr& operator=(const InInitMgr&) = delete;

    // Appends every argument to the argument store, sets argc to 0 and argv to
    // null (the library consumes the whole command line: parse your own copy, or
    // use InOptionParser), then runs a pass. A second call appends its arguments
    // and initialises whatever waits. Raises the first exception of a package;
    // InEx::ExPackageNotRegistered or InEx::ExDependencyCycle when the packages
    // cannot be ordered.
    void initialize(int& argc, const char* const*& argv);
    void initialize(int& argc, char**& argv);

    // Drops pending overrides, empties the argument store and finalises every
    // initialised package in reverse order. Raises InEx::ExFinaliseBeforeInit
    // when no pass has run and InEx::ExDoubleFinalise the second time. A package
    // that fails to finalise does not keep the others from finalising; the first
    // failure is raised afterwards.
    void finalize();

    bool isInitializing() const { return _initializing; }
    bool isFinalizing() const { return _finalizing; }

    // The value of an environment variable as it was when the manager was made
    // (a snapshot), or null when the name is null or absent.
    static const char* getEnv(const char* name);
    // Whether QN_DEBUG_INITIALIZE is set.
    static bool isDebugging();

    // Writes which packages of the last pass are in dependency cycles.
    std::ostream& reportCycles(std::ostream& out) const;
    // Writes the waiting and saved packages, then the cycle report if any.
    std::ostream& dump(std::ostream& out) const;

    // Package side: queues a package for the next pass. Raises
    // InEx::ExReinitWithoutGuard once the manager is initialised, unless an
    // InReinitGuard lives.
    void registerPackage(InPackageInit* package);
    // Whether a package of that type was initialised by an earlier pass.
    bool isPackageInitialized(const std::type_info& type) const;

  private:
    friend class InReinitGuard;

    struct Entry {
        InPackageInit* package;
        const std::type_info* type;
        uint32_t count;
        bool initialized;
    };

    InInitMgr();
    ~InInitMgr();

    void runPass();
    void orderPass();
    void initializePass();
    void traceList() const;
    void buildMatrix();
    Entry* findSaved(const std::type_info& type);
    const Entry* findSaved(const std::type_info& type) const;
    static void dumpList(std::ostream& out, const Vector<Entry>& list, const char* none,
                         const char* heading);

    // Reads the process environment block, one "name=value" text per entry.
    static Vector<std::string> performReadEnvironment();
    void takeEnvironmentSnapshot();

    Vector<Entry> _waiting;
    Vector<Entry> _packagesToInit;
    Vector<Entry> _saved;
    InDependencyMatrix _matrix;
    std::map<std::string, std::string> _environment;
    bool _cycle = false;
    bool _initialized = false;
    bool _finalized = false;
    bool _initializing = false;
    bool _finalizing = false;
    int _reinitCount = 0;
};

QN_BASE_API std::ostream& operator<<(std::ostream& out, const InInitMgr& manager);

}  // namespace Qn
