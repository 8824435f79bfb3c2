// HmSystemHeapMgr on Windows: the statistics of the C runtime's heap, gathered
// by walking its blocks (_heapwalk).
#include <base/hmSystemHeapMgr.h>

#include <malloc.h>

#include <ostream>

namespace Qn {

void HmSystemHeapMgr::performDumpMallocStats(std::ostream& out) const {
    _HEAPINFO entry{};
    unsigned long long usedBytes = 0, usedBlocks = 0, freeBytes = 0, freeBlocks = 0;
    int status;
    while ((status = _heapwalk(&entry)) == _HEAPOK) {
        if (entry._useflag == _USEDENTRY) {
            usedBytes += entry._size;
            ++usedBlocks;
        } else {
            freeBytes += entry._size;
            ++freeBlocks;
        }
    }
    out << "Malloc stats of the C runtime heap:\n"
        << "  bytes in use: " << usedBytes << "\n"
        << "  blocks in use: " << usedBlocks << "\n"
        << "  free bytes: " << freeBytes << "\n"
        << "  free blocks: " << freeBlocks << "\n"
        << "  walk: " << (status == _HEAPEND || status == _HEAPEMPTY ? "complete" : "stopped early")
        << "\n";
}

}  // namespace Qn
