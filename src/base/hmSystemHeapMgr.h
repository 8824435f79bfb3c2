// Qn::HmSystemHeapMgr: the compiler's heap manager that also reports the
// allocator's own statistics in dumpMallocStats() (glibc's counters on Linux,
// a walk of the runtime's heap on Windows). Everything else behaves as the
// default manager, configuration from the QN_HEAP_* variables included.
//
//   Qn::HmSystemHeapMgr heap;
//   heap.dumpMallocStats(std::cout);
//
// The statistics are a snapshot; other threads may allocate while they are
// gathered.
#pragma once

#include <base/hmHeapMgr.h>

namespace Qn {

class QN_BASE_API HmSystemHeapMgr : public HmHeapMgr {
  public:
    HmSystemHeapMgr() = default;

    // "Malloc stats of <allocator>:" and one line per figure, "  <name>: <n>".
    void dumpMallocStats(std::ostream& out) const override;

  private:
    // Writes the allocator's name line and figures; on platforms whose
    // allocator keeps none, the default manager's text.
    void performDumpMallocStats(std::ostream& out) const;
};

}  // namespace Qn
