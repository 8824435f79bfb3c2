// Qn::RnHistogramBiRng<T>: points drawn from the piecewise-constant density of
// a two-dimensional histogram over a rectangle.
//
// The weights are given row by row: weights[row * columns + column], rows along
// y. A point inverts the marginal table of the rows with its second source
// component, then the table of that row with its first, so each source point
// maps monotonically within its row and the source's spread is kept. Empty
// cells are never drawn. The source is not owned and must outlive the
// generator.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <base/interval.h>
#include <base/rnBiRng.h>
#include <base/rnCumulativeTable.h>
#include <base/vector.h>

namespace Qn {

template <class T>
class RnHistogramBiRng : public RnBiRng<T> {
  public:
    // Raises RnEx::ExInvalidHistogram when source is null, a count is 0, a range
    // is empty or not finite, a weight is negative or not finite, or the weights
    // sum to 0.
    RnHistogramBiRng(RnBiRng<T>* source, const T* weights, unsigned int columns, unsigned int rows,
                     Interval<T> xRange = Interval<T>(T(0), T(1)),
                     Interval<T> yRange = Interval<T>(T(0), T(1)));

    void getSample(T& x, T& y) override;
    void getSequence(unsigned int n, T* x, T* y) override;
    void getEfficientWidth(T& x, T& y) const override;
    void getEfficientMin(T& x, T& y) const override;
    void getEfficientMax(T& x, T& y) const override;
    T getEfficientFraction() const override;
    // The weight of the cell of (x, y) over the total and the cell area; 0
    // outside the rectangle.
    T getPdf(T x, T y) const override;
    void restart() override;
    const char* getName() const override;

  private:
    // Maps a source point in place to a point of the histogram.
    void map(T& x, T& y) const;

    RnBiRng<T>* _source;
    Vector<RnCumulativeTable<T>> _rowTables;
    RnCumulativeTable<T> _rows;
    Interval<T> _xRange;
    Interval<T> _yRange;
    T _cellWidth;
    T _cellHeight;
};

extern template class QN_BASE_API RnHistogramBiRng<float>;
extern template class QN_BASE_API RnHistogramBiRng<double>;

}  // namespace Qn

#include <base/rnHistogramBiRng.imp>
