// HmSystemHeapMgr on POSIX: the statistics of glibc's allocator (mallinfo2).
// Other C libraries keep no such counters: their managers say so as the
// default manager does.
#include <base/hmSystemHeapMgr.h>

#include <ostream>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace Qn {

namespace {

#if defined(__GLIBC__)
bool writeAllocatorStats(std::ostream& out) {
    const struct mallinfo2 info = mallinfo2();
    out << "Malloc stats of glibc:\n"
        << "  bytes in use: " << info.uordblks << "\n"
        << "  free bytes: " << info.fordblks << "\n"
        << "  free chunks: " << info.ordblks << "\n"
        << "  arena bytes: " << info.arena << "\n"
        << "  mapped bytes: " << info.hblkhd << "\n"
        << "  mapped regions: " << info.hblks << "\n"
        << "  releasable bytes: " << info.keepcost << "\n";
    return true;
}
#else
bool writeAllocatorStats(std::ostream&) { return false; }
#endif

}  // namespace

void HmSystemHeapMgr::performDumpMallocStats(std::ostream& out) const {
    if (!writeAllocatorStats(out)) HmHeapMgr::dumpMallocStats(out);
}

}  // namespace Qn
