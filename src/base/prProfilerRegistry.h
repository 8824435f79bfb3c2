// Qn::PrProfilerRegistry: a set of named profilers that it owns, reported
// together in one table.
//
//   Qn::PrProfilerRegistry profilers;
//   Qn::PrProfiler& load = profilers.create("load", Qn::PrProfiler::Hardware);
//   Qn::PrProfiler& draw = profilers.create("draw", Qn::PrProfiler::Hardware);
//   ...
//   profilers.report(std::cout);
//
// Profiler                   cycles          total        average        minimum        maximum
// ------------------------ -------- -------------- -------------- -------------- --------------
// load                            1       0.120418       0.120418       0.120418       0.120418
// draw                           24       0.480211       0.020009       0.018334       0.031002
//
// Not thread-safe, like the profilers it holds.
#pragma once

#include <cstddef>
#include <iosfwd>

#include <base/objPtr.h>
#include <base/prProfiler.h>
#include <base/vector.h>

namespace Qn {

class QN_BASE_API PrProfilerRegistry {
  public:
    PrProfilerRegistry();
    ~PrProfilerRegistry();
    PrProfilerRegistry(const PrProfilerRegistry&) = delete;
    PrProfilerRegistry& operator=(const PrProfilerRegistry&) = delete;

    // Makes a profiler on the named clock, keeps it and returns it. Raises
    // PrEx::ExDuplicateProfiler when a profiler of that name is held already.
    PrProfiler& create(const char* name, PrProfiler::Clock clock);
    // Takes a profiler made by the caller (on a timer of its own, say) and
    // returns it; raises PrEx::ExDuplicateProfiler as create() does, and then
    // the profiler is deleted.
    PrProfiler& add(ObjPtr<PrProfiler> profiler);
    // Deletes the named profiler; false when there is none.
    bool remove(const char* name);

    // The named profiler, or null when there is none.
    PrProfiler* find(const char* name) const;
    // The named profiler; raises PrEx::ExUnknownProfiler when there is none.
    PrProfiler& get(const char* name) const;
    size_t getCount() const { return _profilers.size(); }

    // Resets every profiler.
    void resetAll();
    // Writes the table: a header line, a rule, and one line per profiler in the
    // order they were added, each ended by a line end.
    void report(std::ostream& stream) const;

  private:
    // The position of the named profiler, or -1.
    ptrdiff_t indexOf(const char* name) const;

    Vector<ObjPtr<PrProfiler>> _profilers;
};

}  // namespace Qn
