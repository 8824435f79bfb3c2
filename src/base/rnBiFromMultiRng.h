// Qn::RnBiFromMultiRng<T, Multi>: a two-dimensional generator that holds a
// two-dimensional Qn::RnMultiRng by value and forwards every operation to it,
// component 0 as x and component 1 as y. The member is reached directly (not
// through a pointer), so its draws are not dispatched through the virtual table.
#pragma once

#include <base/rnBiRng.h>

namespace Qn {

template <class T, class Multi>
class RnBiFromMultiRng : public RnBiRng<T> {
    static_assert(Multi::Dimension == 2, "the forwarded generator is two-dimensional");

  public:
    void getSample(T& x, T& y) override;
    void getSequence(unsigned int n, T* x, T* y) override;
    void getEfficientWidth(T& x, T& y) const override;
    void getEfficientMin(T& x, T& y) const override;
    void getEfficientMax(T& x, T& y) const override;
    T getEfficientFraction() const override;
    T getPdf(T x, T y) const override;
    void restart() override;
    const char* getName() const override;

  protected:
    RnBiFromMultiRng() = default;
    explicit RnBiFromMultiRng(const Multi& multi) : _multi(multi) {}

    Multi _multi;

  private:
    using Query = void (Multi::*)(T*) const;
    // Runs a range query of the member and splits its two components.
    void split(Query query, T& x, T& y) const;
};

}  // namespace Qn

#include <base/rnBiFromMultiRng.imp>
