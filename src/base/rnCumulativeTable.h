// Qn::RnCumulativeTable<T>: the normalised cumulative sums of a row of
// non-negative weights, inverted to map a uniform value to a bin.
//
// invert() is monotonic in its argument, so a stratified or low-discrepancy
// source keeps its spread through the mapping; empty bins are never chosen.
// Lookups are a binary search and allocate nothing.
#pragma once

#include <base/interval.h>
#include <base/qnExport.h>
#include <base/vector.h>

namespace Qn {

template <class T>
class RnCumulativeTable {
  public:
    RnCumulativeTable() = default;
    // Builds the table of weights[0 .. count-1]. A weight that is negative or
    // not finite, or a sum that is not finite, raises RnEx::ExInvalidHistogram.
    // All weights may be 0; then getTotal() is 0 and invert() must not be used.
    RnCumulativeTable(const T* weights, unsigned int count);

    // Raises RnEx::ExInvalidHistogram unless source is set, count > 0 and range
    // is finite and not empty: the domain of a histogram sampler.
    static void checkDomain(const void* source, unsigned int count, Interval<T> range);
    // The table of a histogram's weights: raises RnEx::ExInvalidHistogram also
    // when they sum to 0.
    static RnCumulativeTable forHistogram(const T* weights, unsigned int count);

    unsigned int getCount() const { return _count; }
    // The sum of the weights.
    T getTotal() const { return _total; }
    // The share of the total in bin.
    T getProbability(unsigned int bin) const { return _cdf[bin + 1] - _cdf[bin]; }
    // The bin whose share of [0, 1) contains u, and where u falls inside it
    // (fraction in [0, 1)). u below 0 or not a number counts as 0, u from 1 on
    // as the top of the last non-empty bin.
    unsigned int invert(T u, T& fraction) const;

  private:
    Vector<T> _cdf;  // _count + 1 sums divided by the total: 0 first, 1 last
    T _total = 0;
    unsigned int _count = 0;
    unsigned int _lastUsed = 0;  // last bin with a non-zero weight
};

extern template class QN_BASE_API RnCumulativeTable<float>;
extern template class QN_BASE_API RnCumulativeTable<double>;

}  // namespace Qn

#include <base/rnCumulativeTable.imp>
