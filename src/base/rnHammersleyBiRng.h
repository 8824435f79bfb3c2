// Qn::RnHammersleyBiRng<T>: the two-dimensional Hammersley point set
// (i / L, phi_2(i)) of a given length L, behind the two-dimensional interface.
// Drawing more than L points fails the assertion "n <= _length".
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <cstdint>

#include <base/rnBiFromMultiRng.h>
#include <base/rnHammersleyMultiRng.h>

namespace Qn {

template <class T>
class RnHammersleyBiRng : public RnBiFromMultiRng<T, RnHammersleyMultiRng<T, 2>> {
  public:
    // REQUIRES: length >= 1.
    explicit RnHammersleyBiRng(std::uint32_t length)
        : RnBiFromMultiRng<T, RnHammersleyMultiRng<T, 2>>(RnHammersleyMultiRng<T, 2>(length)) {}

    std::uint32_t getLength() const { return this->_multi.getLength(); }
};

extern template class QN_BASE_API RnBiFromMultiRng<float, RnHammersleyMultiRng<float, 2>>;
extern template class QN_BASE_API RnBiFromMultiRng<double, RnHammersleyMultiRng<double, 2>>;
extern template class QN_BASE_API RnHammersleyBiRng<float>;
extern template class QN_BASE_API RnHammersleyBiRng<double>;

}  // namespace Qn
