#include <base/inDependencyMatrix.h>

#include <bit>

namespace Qn {

void InDependencyMatrix::reset(int size) {
    _size = size;
    _words = (static_cast<size_t>(size) + 63) / 64;
    _bits.assign(_words * static_cast<size_t>(size), 0);
}

bool InDependencyMatrix::close(std::vector<uint32_t>& counts) {
    bool cycle = false;
    for (int k = 0; k < _size; ++k) {
        if (counts[k] == 0) continue;
        const uint64_t* rowK = &_bits[index(k, 0)];
        const size_t wordK = static_cast<size_t>(k) >> 6;
        const uint64_t bitK = uint64_t{1} << (k & 63);
        for (int i = 0; i < _size; ++i) {
            if (i == k || !test(i, k)) continue;
            uint64_t* rowI = &_bits[index(i, 0)];
            const size_t wordI = static_cast<size_t>(i) >> 6;
            const uint64_t bitI = uint64_t{1} << (i & 63);
            for (size_t w = 0; w < _words; ++w) {
                uint64_t added = rowK[w] & ~rowI[w];
                if (w == wordK) added &= ~bitK;
                if (!added) continue;
                rowI[w] |= added;
                if (w == wordI && (added & bitI)) {
                    cycle = true;
                    added &= ~bitI;
                }
                counts[i] += static_cast<uint32_t>(std::popcount(added));
            }
        }
    }
    return cycle;
}

}  // namespace Qn
