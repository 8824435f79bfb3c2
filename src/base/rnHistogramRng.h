// Qn::RnHistogramRng<T>: values drawn from the piecewise-constant density of a
// histogram over an interval, by inversion of its cumulative table.
//
// Bin k of count covers [lower + k w, lower + (k + 1) w), w = (upper - lower) /
// count, and is drawn with probability weight k / sum of weights; inside it the
// value is spread uniformly. Each value consumes one value of the source, mapped
// monotonically, so stratified and low-discrepancy sources keep their spread.
// The source is not owned and must outlive the generator.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <base/interval.h>
#include <base/rnCumulativeTable.h>
#include <base/rnEvalRng.h>

namespace Qn {

template <class T>
class RnHistogramRng : public RnEvalRng<T, RnHistogramRng<T>> {
  public:
    // Raises RnEx::ExInvalidHistogram when source is null, count is 0, the range
    // is empty or not finite, a weight is negative or not finite, or the weights
    // sum to 0.
    RnHistogramRng(RnRng<T>* source, const T* weights, unsigned int count,
                   Interval<T> range = Interval<T>(T(0), T(1)));

    // One draw; the body of every other draw.
    // Always inlined: callers in other modules get the draw without a call.
    [[gnu::always_inline]] T eval() {
        T fraction;
        const unsigned int bin = _table.invert((*_source)(), fraction);
        return std::min(_lower + (T(bin) + fraction) * _binWidth, _below);
    }

    T getEfficientWidth() const override;
    T getEfficientMin() const override;
    T getEfficientMax() const override;
    T getEfficientFraction() const override;
    // The weight of the bin of x over the total and the bin width; 0 outside
    // [lower, upper).
    T getPdf(T x) const override;
    void restart() override;
    const char* getName() const override;

  private:
    RnRng<T>* _source;
    RnCumulativeTable<T> _table;
    T _lower;
    T _upper;
    T _below;  // the largest value below _upper
    T _binWidth;
};

extern template class QN_BASE_API RnEvalRng<float, RnHistogramRng<float>>;
extern template class QN_BASE_API RnEvalRng<double, RnHistogramRng<double>>;
extern template class QN_BASE_API RnHistogramRng<float>;
extern template class QN_BASE_API RnHistogramRng<double>;

}  // namespace Qn

#include <base/rnHistogramRng.imp>
