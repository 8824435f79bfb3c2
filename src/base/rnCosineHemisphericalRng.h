// Qn::RnCosineHemisphericalRng<T>: directions on the hemisphere around +z with
// density cos(theta)/pi over solid angle (cos(theta) = sqrt(u1)), the
// distribution of diffuse reflection.
//
// getSequenceXYZ maps each source point with the roles of its components
// exchanged (cos(theta) from the second, phi from the first), unlike
// getSampleXYZ; both give the same distribution, not the same directions.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <base/rnDirectionRng.h>

namespace Qn {

template <class T>
class RnCosineHemisphericalRng : public RnDirectionRng<T, RnCosineHemisphericalRng<T>> {
  public:
    // REQUIRES: biRng not null.
    explicit RnCosineHemisphericalRng(RnBiRng<T>* biRng)
        : RnDirectionRng<T, RnCosineHemisphericalRng<T>>(biRng) {}

    static T cosTheta(T u1) { return std::sqrt(u1); }

    void getSequenceXYZ(unsigned int n, T* x, T* y, T* z);
    // z / pi.
    T getPdfXYZ(T x, T y, T z) const;
    // cos(theta) / pi: the density over solid angle, without the sin(theta) of
    // the angle measure.
    T getPdfAngles(T theta, T phi) const;
    // cos(theta) / pi.
    T getPdfCosine(T cosTheta, T phi) const;
    const char* getName() const { return "Cosine hemispherical"; }
};

extern template class QN_BASE_API RnDirectionRng<float, RnCosineHemisphericalRng<float>>;
extern template class QN_BASE_API RnDirectionRng<double, RnCosineHemisphericalRng<double>>;
extern template class QN_BASE_API RnCosineHemisphericalRng<float>;
extern template class QN_BASE_API RnCosineHemisphericalRng<double>;

}  // namespace Qn

#include <base/rnCosineHemisphericalRng.imp>
