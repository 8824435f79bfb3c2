// Qn::TraceLevel: a named switch of the trace facility. Client code registers
// its levels with Trace::registerLevel, usually from a static initialiser:
//
//   static Qn::TraceLevel& ioLevel = Qn::Trace::registerLevel("Io", __FILE__);
//
// The trace options (QN_TRACE_OPTIONS, Trace::setOptions) enable and disable
// levels by name. Levels live until the process ends; they are never removed.
// No lock: levels are registered and switched during start-up.
#pragma once

#include <base/arrayPtr.h>
#include <base/list.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API TraceLevel {
  public:
    // Keeps a copy of name.
    TraceLevel(const char* name, bool enabled);
    TraceLevel(const TraceLevel&) = delete;
    TraceLevel& operator=(const TraceLevel&) = delete;

    const char* getName() const { return _name.get(); }
    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }

    // The names of the files that registered the level, in registration order.
    // The texts are not copied: they must live as long as the level (__FILE__
    // does).
    const List<const char*>& getFileNames() const { return _fileNames; }
    void addFileName(const char* fileName) { _fileNames.push_back(fileName); }

  private:
    ArrayPtr<char> _name;
    bool _enabled;
    List<const char*> _fileNames;
};

}  // namespace Qn
