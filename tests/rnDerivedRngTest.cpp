#include <base/rnAsymmetricalSeparableBiRng.h>
#include <base/rnCosineHemisphericalRng.h>
#include <base/rnGaussianRng.h>
#include <base/rnMexicanHatRng.h>
#include <base/rnSeparableBiRng.h>
#include <base/rnSeparableMultiRng.h>
#include <base/rnUniformHemisphericalRng.h>
#include <base/rnUniformSphericalRng.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include <base/exInternalError.h>
#include <base/rnHaltonBiRng.h>
#include <base/rnNumRecUniformRng.h>
#include <support/rnTestSupport.h>

namespace {

template <class T>
class RnDerivedRngTest : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(RnDerivedRngTest, Precisions);

// "reason @ file:line" of the internal error an action raises.
std::string failure(const std::function<void()>& action) {
    try {
        action();
    } catch (const Qn::ExInternalError& e) {
        return std::string(e.getReason()) + " @ " + e.getFileName() + ":" +
               std::to_string(e.getLineNo());
    }
    return "<nothing raised>";
}

constexpr double Pi = 3.14159265358979323846;

}  // namespace

TYPED_TEST(RnDerivedRngTest, GaussianPolarMethodWithSpare) {
    using T = TypeParam;
    // The first pair (p, q) = (0.98, 0.98) is rejected; (0.5, 0) is accepted.
    RnTest::ScriptedRng<T> script({T(0.99), T(0.99), T(0.75), T(0.5), T(0.625)});
    Qn::RnGaussianRng<T> gauss(&script, T(1), T(2));
    const T f = std::sqrt(T(-2) * std::log(T(0.25)) / T(0.25));
    EXPECT_EQ(gauss(), T(0.5) * f * T(2) + T(1));
    EXPECT_EQ(script.draws(), 4u);
    EXPECT_EQ(gauss(), T(1));  // the spare, q = 0
    EXPECT_EQ(script.draws(), 4u);
    gauss.restart();
    EXPECT_EQ(script.restarts, 1);

    EXPECT_EQ(gauss.getEfficientWidth(), T(8));
    EXPECT_EQ(gauss.getEfficientMin(), T(-3));
    EXPECT_EQ(gauss.getEfficientMax(), T(5));
    EXPECT_EQ(gauss.getEfficientFraction(), T(0.99993664));
    EXPECT_NEAR(gauss.getPdf(T(1)), 1 / (std::sqrt(2 * Pi) * 2), 1e-7);
    EXPECT_NEAR(gauss.getPdf(T(3)), std::exp(-0.5) / (std::sqrt(2 * Pi) * 2), 1e-7);
    EXPECT_STREQ(gauss.getName(), "Gaussian");

    EXPECT_EQ(failure([] { Qn::RnGaussianRng<T>(nullptr, T(0), T(1)); }),
              "Assertion '_uniRng' failed. @ rnGaussianRng.imp:92");
    EXPECT_EQ(failure([&] { Qn::RnGaussianRng<T>(&script, T(0), T(0)); }),
              "Assertion '_sigma > 0' failed. @ rnGaussianRng.imp:93");
}

TYPED_TEST(RnDerivedRngTest, GaussianMeanAndVariance) {
    using T = TypeParam;
    Qn::RnNumRecUniformRng<T> uniform(5);
    Qn::RnGaussianRng<T> gauss(&uniform, T(3), T(0.5));
    std::vector<T> values(40000);
    gauss.getSequence(40000, values.data());
    double sum = 0, squares = 0;
    int within = 0;
    for (T v : values) {
        sum += v;
        squares += double(v) * v;
        within += std::abs(v - 3) < 0.5;
    }
    const double mean = sum / values.size(), variance = squares / values.size() - mean * mean;
    EXPECT_NEAR(mean, 3.0, 0.01);        // 4 standard errors
    EXPECT_NEAR(variance, 0.25, 0.008);  // 4.5 standard errors
    EXPECT_NEAR(within / 40000.0, 0.6827, 0.01);
}

TYPED_TEST(RnDerivedRngTest, MexicanHatTent) {
    using T = TypeParam;
    RnTest::ScriptedRng<T> script({T(0), T(0.5), T(0.875), T(0.125)});
    Qn::RnMexicanHatRng<T> hat(&script);
    EXPECT_EQ(hat(), T(-0.5));
    EXPECT_EQ(hat(), T(0));
    EXPECT_EQ(hat(), T(0.25));
    EXPECT_EQ(hat(), T(-0.25));
    EXPECT_EQ(hat.getPdf(T(0)), T(2));
    EXPECT_EQ(hat.getPdf(T(0.5)), T(0));
    EXPECT_EQ(hat.getPdf(T(-0.5)), T(0));
    EXPECT_EQ(hat.getPdf(T(0.25)), T(1));
    EXPECT_STREQ(hat.getName(), "Mexican Hat");

    Qn::RnMexicanHatRng<T> wide(&script, T(10), T(4));
    EXPECT_EQ(wide.getEfficientWidth(), T(4));
    EXPECT_EQ(wide.getEfficientMin(), T(8));
    EXPECT_EQ(wide.getEfficientMax(), T(12));
    EXPECT_EQ(wide.getEfficientFraction(), T(1));
    EXPECT_EQ(wide.getPdf(T(10)), T(0.5));

    EXPECT_EQ(failure([] { Qn::RnMexicanHatRng<T>{nullptr}; }),
              "Assertion 'rng != 0' failed. @ rnMexicanHatRng.imp:78");
    EXPECT_EQ(failure([] { Qn::RnMexicanHatRng<T>(nullptr, T(0), T(1)); }),
              "Assertion 'rng != 0' failed. @ rnMexicanHatRng.imp:97");
    EXPECT_EQ(failure([&] { Qn::RnMexicanHatRng<T>(&script, T(0), T(0)); }),
              "Assertion '_halfwidth > 0' failed. @ rnMexicanHatRng.imp:98");

    // The density integrates to 1 and the draws follow it.
    Qn::RnNumRecUniformRng<T> uniform(9);
    Qn::RnMexicanHatRng<T> drawn(&uniform, T(1), T(2));
    std::vector<T> values(20000);
    drawn.getSequence(20000, values.data());
    int central = 0;
    for (T v : values) central += std::abs(v - 1) < 0.5;
    EXPECT_NEAR(central / 20000.0, 0.75, 0.012);
    double integral = 0;
    for (int i = 0; i < 2000; ++i) integral += drawn.getPdf(T(-0.5 + (i + 0.5) * 0.0015)) * 0.0015;
    EXPECT_NEAR(integral, 1.0, 1e-3);
}

TYPED_TEST(RnDerivedRngTest, CosineHemisphereFormsAndSequenceRoles) {
    using T = TypeParam;
    RnTest::ScriptedBiRng<T> script({{T(0.25), T(0.25)}, {T(0.25), T(0.25)}, {T(0.25), T(0.25)}});
    Qn::RnCosineHemisphericalRng<T> cosine(&script);
    T x, y, z, theta, phi, c;
    cosine.getSampleXYZ(x, y, z);
    EXPECT_EQ(z, T(0.5));
    EXPECT_NEAR(x, 0, 1e-6);
    EXPECT_NEAR(y, std::sqrt(0.75), 1e-6);
    EXPECT_NEAR(cosine.getPdfXYZ(x, y, z), 0.5 / Pi, 1e-7);
    cosine.getSampleAngles(theta, phi);
    EXPECT_NEAR(theta, Pi / 3, 1e-6);
    EXPECT_NEAR(phi, Pi / 2, 1e-6);
    EXPECT_NEAR(cosine.getPdfAngles(theta, phi), 0.5 / Pi, 1e-7);
    cosine.getSampleCosine(c, phi);
    EXPECT_EQ(c, T(0.5));
    EXPECT_NEAR(cosine.getPdfCosine(c, phi), 0.5 / Pi, 1e-7);
    EXPECT_STREQ(cosine.getName(), "Cosine hemispherical");

    // The sequence form takes cos(theta) from the second component, phi from the first.
    RnTest::ScriptedBiRng<T> pair({{T(0.25), T(0.64)}});
    Qn::RnCosineHemisphericalRng<T> sequence(&pair);
    sequence.getSequenceXYZ(1, &x, &y, &z);
    EXPECT_NEAR(z, 0.8, 1e-6);
    EXPECT_NEAR(x, 0, 1e-6);
    EXPECT_NEAR(y, 0.6, 1e-6);
    pair.restart();
    Qn::RnUniformHemisphericalRng<T> uniform(&pair);
    uniform.getSequenceXYZ(1, &x, &y, &z);
    EXPECT_EQ(z, T(0.25));
    EXPECT_NEAR(x, std::cos(0.64 * 2 * Pi) * std::sqrt(1 - 0.0625), 1e-6);

    EXPECT_EQ(failure([] { Qn::RnUniformSphericalRng<T>{nullptr}; }).substr(0, 36),
              "Assertion 'biRng != nullptr' failed.");
}

// Mean direction, unit length and density integrals of the three direction generators.
TYPED_TEST(RnDerivedRngTest, DirectionDistributionsAndDensities) {
    using T = TypeParam;
    struct Expect {
        double meanZ, zMin;
    };
    Qn::RnHaltonBiRng<T> source;
    Qn::RnCosineHemisphericalRng<T> cosine(&source);
    Qn::RnUniformSphericalRng<T> sphere(&source);
    Qn::RnUniformHemisphericalRng<T> hemisphere(&source);
    const unsigned int n = 4096;
    std::vector<T> x(n), y(n), z(n), theta(n), phi(n);
    auto check = [&](auto& gen, Expect expect, double thetaMax, double cosMin) {
        SCOPED_TRACE(gen.getName());
        source.restart();
        gen.getSequenceXYZ(n, x.data(), y.data(), z.data());
        double sx = 0, sy = 0, sz = 0;
        for (unsigned int i = 0; i < n; ++i) {
            ASSERT_NEAR(double(x[i]) * x[i] + double(y[i]) * y[i] + double(z[i]) * z[i], 1, 1e-5);
            ASSERT_GE(z[i], expect.zMin - 1e-6);
            sx += x[i], sy += y[i], sz += z[i];
        }
        EXPECT_NEAR(sx / n, 0, 0.01);
        EXPECT_NEAR(sy / n, 0, 0.01);
        EXPECT_NEAR(sz / n, expect.meanZ, 0.01);
        source.restart();
        gen.getSequenceAngles(n, theta.data(), phi.data());
        double st = 0;
        for (unsigned int i = 0; i < n; ++i) st += std::cos(theta[i]);
        EXPECT_NEAR(st / n, expect.meanZ, 0.01);
        // Densities over solid angle: integrate in (theta, phi) with sin(theta) and
        // in (cos(theta), phi) directly.
        double angles = 0, cosines = 0, xyz = 0;
        const int steps = 400;
        for (int i = 0; i < steps; ++i) {
            const double t = (i + 0.5) * thetaMax / steps;
            const double c = cosMin + (i + 0.5) * (1 - cosMin) / steps;
            angles += gen.getPdfAngles(T(t), T(1)) * std::sin(t) * thetaMax / steps * 2 * Pi;
            cosines += gen.getPdfCosine(T(c), T(1)) * (1 - cosMin) / steps * 2 * Pi;
            xyz +=
                gen.getPdfXYZ(T(0), T(std::sqrt(1 - c * c)), T(c)) * (1 - cosMin) / steps * 2 * Pi;
        }
        EXPECT_NEAR(angles, 1, 1e-3);
        EXPECT_NEAR(cosines, 1, 1e-3);
        EXPECT_NEAR(xyz, 1, 1e-3);
    };
    check(cosine, {2.0 / 3, 0}, Pi / 2, 0);
    check(sphere, {0, -1}, Pi, -1);
    check(hemisphere, {0.5, 0}, Pi / 2, 0);
    EXPECT_EQ(hemisphere.getPdfCosine(T(-0.5), T(0)), T(0));
    EXPECT_EQ(hemisphere.getPdfAngles(T(2), T(0)), T(0));
    EXPECT_EQ(sphere.getPdfCosine(T(1.5), T(0)), T(0));
    EXPECT_STREQ(sphere.getName(), "Uniform spherical");
    EXPECT_STREQ(hemisphere.getName(), "Uniform hemispherical");
}

TYPED_TEST(RnDerivedRngTest, SeparableGeneratorsComposeTheirSources) {
    using T = TypeParam;
    Qn::RnNumRecUniformRng<T> a(1), b(2), referenceA(1), referenceB(2);
    Qn::RnSeparableBiRng<T> symmetrical(&a);
    Qn::RnAsymmetricalSeparableBiRng<T> asymmetrical(&a, &b);
    EXPECT_STREQ(symmetrical.getName(), "Symmetrical Bi Separable");
    EXPECT_STREQ(asymmetrical.getName(), "Assymetrical Bi Separable");
    T x[4], y[4];
    symmetrical.getSequence(4, x, y);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(x[i], referenceA());
        EXPECT_EQ(y[i], referenceA());
    }
    asymmetrical.getSample(x[0], y[0]);
    asymmetrical.getSequence(3, x + 1, y + 1);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(x[i], referenceA());
        EXPECT_EQ(y[i], referenceB());
    }

    RnTest::ScriptedRng<T> script({T(0.5)});
    Qn::RnGaussianRng<T> gauss(&script, T(0), T(1));
    Qn::RnMexicanHatRng<T> hat(&script);
    Qn::RnRng<T>* const sources[3] = {&a, &gauss, &hat};
    Qn::RnSeparableMultiRng<T, 3> multi(sources);
    EXPECT_STREQ(multi.getName(), "Multi Separable");
    T min[3], max[3], width[3];
    multi.getEfficientMin(min);
    multi.getEfficientMax(max);
    multi.getEfficientWidth(width);
    EXPECT_EQ(std::vector<T>(min, min + 3), (std::vector<T>{0, -2, -0.5}));
    EXPECT_EQ(std::vector<T>(max, max + 3), (std::vector<T>{1, 2, 0.5}));
    EXPECT_EQ(std::vector<T>(width, width + 3), (std::vector<T>{1, 4, 1}));
    EXPECT_EQ(multi.getEfficientFraction(), T(0.99993664));
    const T at[3] = {T(0.5), T(0), T(0)};
    EXPECT_EQ(multi.getPdf(at), gauss.getPdf(T(0)) * T(2));
    multi.restart();
    EXPECT_EQ(script.restarts, 2);
    EXPECT_EQ(failure([] { Qn::RnSeparableBiRng<T>{nullptr}; }).substr(0, 37),
              "Assertion 'source != nullptr' failed.");
}
