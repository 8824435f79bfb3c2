// Qn::RnUniformSphericalRng<T>: directions spread uniformly over the whole
// sphere (cos(theta) = 2 u1 - 1), density 1/(4 pi) over solid angle in every
// form.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <base/rnDirectionRng.h>

namespace Qn {

template <class T>
class RnUniformSphericalRng : public RnDirectionRng<T, RnUniformSphericalRng<T>> {
  public:
    // REQUIRES: biRng not null.
    explicit RnUniformSphericalRng(RnBiRng<T>* biRng)
        : RnDirectionRng<T, RnUniformSphericalRng<T>>(biRng) {}

    static T cosTheta(T u1) { return T(2) * u1 - T(1); }

    // 1/(4 pi) for every direction.
    T getPdfXYZ(T, T, T) const { return RnConstants<T>::InvFourPi; }
    // 1/(4 pi) for 0 <= theta <= pi, 0 elsewhere (over solid angle).
    T getPdfAngles(T theta, T) const {
        return theta >= T(0) && theta <= RnConstants<T>::TwoPi * T(0.5) ? RnConstants<T>::InvFourPi
                                                                        : T(0);
    }
    // 1/(4 pi) for -1 <= cos(theta) <= 1, 0 elsewhere.
    T getPdfCosine(T cosTheta, T) const {
        return std::abs(cosTheta) <= T(1) ? RnConstants<T>::InvFourPi : T(0);
    }
    const char* getName() const { return "Uniform spherical"; }
};

extern template class QN_BASE_API RnDirectionRng<float, RnUniformSphericalRng<float>>;
extern template class QN_BASE_API RnDirectionRng<double, RnUniformSphericalRng<double>>;
extern template class QN_BASE_API RnUniformSphericalRng<float>;
extern template class QN_BASE_API RnUniformSphericalRng<double>;

}  // namespace Qn
