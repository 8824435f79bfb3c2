// Qn::RnSeparableMultiRng<T, N>: N-dimensional points whose components are
// independent draws of one-dimensional sources.
//
// Built from one source, a point takes N successive values of it; built from N
// sources, component k comes from source k. The density is the product of the
// sources' densities and each component reports its source's range. Sources
// are not owned and must outlive the generator; restart() restarts them.
// getSequence yields what n calls of getSample would: sources that are all
// distinct fill their arrays with their own getSequence, a shared source is
// drawn point by point.
//
// Thread-safety: none; the sources are shared state of this generator.
#pragma once

#include <base/rnMultiRng.h>
#include <base/rnRng.h>

namespace Qn {

template <class T, int N>
class RnSeparableMultiRng : public RnMultiRng<T, N> {
  public:
    // Every component from source. REQUIRES: source not null.
    explicit RnSeparableMultiRng(RnRng<T>* source);
    // Component k from sources[k]. REQUIRES: no source null.
    explicit RnSeparableMultiRng(RnRng<T>* const (&sources)[N]);

    void getSample(T* point) override;
    void getSequence(unsigned int n, T* const* out) override;
    void getEfficientWidth(T* width) const override;
    void getEfficientMin(T* min) const override;
    void getEfficientMax(T* max) const override;
    // Product of the sources' fractions.
    T getEfficientFraction() const override;
    // Product of the sources' densities.
    T getPdf(const T* point) const override;
    void restart() override;
    const char* getName() const override;

  private:
    using Query = T (RnRng<T>::*)() const;
    void perComponent(Query query, T* out) const;

    RnRng<T>* _sources[N];
    bool _distinct;
};

extern template class QN_BASE_API RnSeparableMultiRng<float, 2>;
extern template class QN_BASE_API RnSeparableMultiRng<double, 2>;
extern template class QN_BASE_API RnSeparableMultiRng<float, 3>;
extern template class QN_BASE_API RnSeparableMultiRng<double, 3>;

}  // namespace Qn

#include <base/rnSeparableMultiRng.imp>
