// Qn::RnHaltonBiRng<T>: the two-dimensional Halton sequence (bases 2 and 3 by
// default), a Qn::RnHaltonMultiRng<T, 2> behind the two-dimensional interface.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <cstdint>

#include <base/rnBiFromMultiRng.h>
#include <base/rnHaltonMultiRng.h>

namespace Qn {

template <class T>
class RnHaltonBiRng : public RnBiFromMultiRng<T, RnHaltonMultiRng<T, 2>> {
  public:
    RnHaltonBiRng() = default;
    // REQUIRES: both bases >= 2.
    RnHaltonBiRng(std::uint32_t base1, std::uint32_t base2);

    // Puts both components on index: the next point is that of index + 1.
    void restart(std::uint32_t index) { this->_multi.restart(index); }
    using RnBiFromMultiRng<T, RnHaltonMultiRng<T, 2>>::restart;
    void getPrimeNumbers(std::uint32_t* bases) const { this->_multi.getPrimeNumbers(bases); }
    void setPrimeNumbers(const std::uint32_t* bases) { this->_multi.setPrimeNumbers(bases); }
};

extern template class QN_BASE_API RnBiFromMultiRng<float, RnHaltonMultiRng<float, 2>>;
extern template class QN_BASE_API RnBiFromMultiRng<double, RnHaltonMultiRng<double, 2>>;
extern template class QN_BASE_API RnHaltonBiRng<float>;
extern template class QN_BASE_API RnHaltonBiRng<double>;

}  // namespace Qn

#include <base/rnHaltonBiRng.imp>
