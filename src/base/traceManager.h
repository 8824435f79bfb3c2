// Qn::TraceManager: where finished trace lines go.
//
// A manager registers itself when made: it becomes the current one when there
// is none or when its priority is greater than the current one's. Destroying
// the current manager clears the place; the next line then goes to a default
// manager of priority 0 that writes to the standard output. A manager that
// sends lines elsewhere derives from the class and overrides print():
//
//   class ToFile : public Qn::TraceManager {
//     public:
//       ToFile() : TraceManager(10) {}
//       void print(const char* line) override { _file << line << '\n'; }
//   };
//
// No lock: managers are installed at start-up. print() must not raise: it runs
// from the destructors of trace entries.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API TraceManager {
  public:
    explicit TraceManager(int priority);
    virtual ~TraceManager();
    TraceManager(const TraceManager&) = delete;
    TraceManager& operator=(const TraceManager&) = delete;

    // Writes a non-empty line and an end of line to the standard output.
    virtual void print(const char* line);

    // The current manager; the default one when none is installed.
    static TraceManager& getInstance();

    int getPriority() const { return _priority; }

  private:
    static void registerManager(TraceManager* manager);
    static void unregisterManager(TraceManager* manager);

    int _priority;
    static TraceManager* _manager;
};

}  // namespace Qn
