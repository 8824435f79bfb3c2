// Qn::RnDirectionRng<T, Gen>: the common part of the direction generators,
// which map a point (u1, u2) of a two-dimensional source to a unit direction.
//
// Gen (the concrete generator, derived from this class) gives the mapping of
// the first component to cos(theta), static T cosTheta(T u1); the second gives
// phi = u2 * 2pi. Each direction comes in three forms: XYZ (z along the polar
// axis), angles (theta, phi) and cosine (cos(theta), phi). The sequence forms
// ask the source for n points in one getSequence call and map them in place.
// The source is not owned, must not be null and must outlive the generator.
//
// Thread-safety: none; the source is shared state of this generator.
#pragma once

#include <cmath>

#include <base/rnBiRng.h>
#include <base/rnConstants.h>

namespace Qn {

template <class T, class Gen>
class RnDirectionRng {
  public:
    void getSampleXYZ(T& x, T& y, T& z);
    void getSampleAngles(T& theta, T& phi);
    void getSampleCosine(T& cosTheta, T& phi);
    void getSequenceXYZ(unsigned int n, T* x, T* y, T* z);
    void getSequenceAngles(unsigned int n, T* theta, T* phi);
    void getSequenceCosine(unsigned int n, T* cosTheta, T* phi);

  protected:
    // REQUIRES: biRng not null (asserted "biRng != nullptr").
    explicit RnDirectionRng(RnBiRng<T>* biRng);
    ~RnDirectionRng() = default;

    // The direction of polar cosine z and azimuth phi.
    static void toXYZ(T z, T phi, T& x, T& y, T& outZ) {
        const T r = std::sqrt(T(1) - z * z);
        x = std::cos(phi) * r;
        y = std::sin(phi) * r;
        outZ = z;
    }
    // Maps the point (first, second) of the source in place to XYZ.
    static void mapXYZ(T first, T second, T& x, T& y, T& z) {
        toXYZ(Gen::cosTheta(first), second * RnConstants<T>::TwoPi, x, y, z);
    }

    RnBiRng<T>* _biRng;
};

}  // namespace Qn

#include <base/rnDirectionRng.imp>
