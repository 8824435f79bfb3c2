// Qn::InDependencyMatrix: the dependency relation of one initialisation pass, a
// bit set per package (row i holds bit j when package i needs package j). Rows
// are arrays of 64-bit words so that the transitive closure works a word at a
// time. Used by the package manager; exported for its benchmark.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API InDependencyMatrix {
  public:
    void reset(int size);
    int size() const { return _size; }

    bool test(int row, int column) const {
        return (_bits[index(row, column)] >> (column & 63)) & 1U;
    }
    void set(int row, int column) { _bits[index(row, column)] |= uint64_t{1} << (column & 63); }

    // Closes the relation transitively in Warshall's order, counting in counts[i]
    // every package newly reached from i. Only rows k whose count is not zero are
    // taken as intermediates. Returns true when some package reaches itself.
    bool close(std::vector<uint32_t>& counts);

  private:
    size_t index(int row, int column) const {
        return static_cast<size_t>(row) * _words + static_cast<size_t>(column >> 6);
    }

    int _size = 0;
    size_t _words = 0;
    std::vector<uint64_t> _bits;
};

}  // namespace Qn
