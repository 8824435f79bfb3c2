// Qn::RnUniformHemisphericalRng<T>: directions spread uniformly over the
// hemisphere around +z (cos(theta) = u1), density 1/(2 pi) over solid angle.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <base/rnDirectionRng.h>

namespace Qn {

template <class T>
class RnUniformHemisphericalRng : public RnDirectionRng<T, RnUniformHemisphericalRng<T>> {
  public:
    // REQUIRES: biRng not null.
    explicit RnUniformHemisphericalRng(RnBiRng<T>* biRng)
        : RnDirectionRng<T, RnUniformHemisphericalRng<T>>(biRng) {}

    static T cosTheta(T u1) { return u1; }

    // 1/(2 pi), the same for every direction given.
    T getPdfXYZ(T, T, T) const { return RnConstants<T>::InvTwoPi; }
    // 1/(2 pi) for 0 <= theta <= pi/2, 0 elsewhere (over solid angle).
    T getPdfAngles(T theta, T) const {
        return theta >= T(0) && theta <= RnConstants<T>::TwoPi * T(0.25) ? RnConstants<T>::InvTwoPi
                                                                         : T(0);
    }
    // 1/(2 pi) for 0 <= cos(theta) <= 1, 0 elsewhere.
    T getPdfCosine(T cosTheta, T) const {
        return cosTheta >= T(0) && cosTheta <= T(1) ? RnConstants<T>::InvTwoPi : T(0);
    }
    const char* getName() const { return "Uniform hemispherical"; }
};

extern template class QN_BASE_API RnDirectionRng<float, RnUniformHemisphericalRng<float>>;
extern template class QN_BASE_API RnDirectionRng<double, RnUniformHemisphericalRng<double>>;
extern template class QN_BASE_API RnUniformHemisphericalRng<float>;
extern template class QN_BASE_API RnUniformHemisphericalRng<double>;

}  // namespace Qn
