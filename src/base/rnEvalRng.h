// Qn::RnEvalRng<T, Gen>: turns the inline, non-virtual T eval() of a concrete
// one-dimensional generator Gen (derived from this class) into the virtual
// draws of Qn::RnRng<T>. getSequence runs eval() in its own loop, so a block of
// values costs no virtual call per element.
#pragma once

#include <base/rnRng.h>

namespace Qn {

template <class T, class Gen>
class RnEvalRng : public RnRng<T> {
  public:
    T operator()() override;
    void getSample(T& value) override;
    void getSequence(unsigned int n, T* out) override;

  protected:
    Gen& self() { return static_cast<Gen&>(*this); }
};

}  // namespace Qn

#include <base/rnEvalRng.imp>
