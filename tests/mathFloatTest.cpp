// Classification, tolerant comparison and neighbours of floating-point values.
#include <base/mathFloat.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using Qn::MathFloat;

namespace {

template <class T>
class MathFloatTyped : public ::testing::Test {};
using FloatTypes = ::testing::Types<float, double>;
TYPED_TEST_SUITE(MathFloatTyped, FloatTypes);

}  // namespace

TYPED_TEST(MathFloatTyped, ClassifiesEveryKindOfValue) {
    using T = TypeParam;
    using L = std::numeric_limits<T>;
    const struct {
        T value;
        MathFloat::Class kind;
        bool finiteNonNegative;
        bool finitePositive;
    } rows[] = {
        {T(0), MathFloat::Zero, true, false},
        {-T(0), MathFloat::Zero, true, false},
        {L::denorm_min(), MathFloat::Subnormal, true, true},
        {-L::denorm_min(), MathFloat::Subnormal, false, false},
        {L::min(), MathFloat::Normal, true, true},
        {L::max(), MathFloat::Normal, true, true},
        {L::lowest(), MathFloat::Normal, false, false},
        {L::infinity(), MathFloat::Infinite, false, false},
        {-L::infinity(), MathFloat::Infinite, false, false},
        {L::quiet_NaN(), MathFloat::NotANumber, false, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(MathFloat::classify(row.value), row.kind);
        EXPECT_EQ(MathFloat::isFiniteNonNegative(row.value), row.finiteNonNegative);
        EXPECT_EQ(MathFloat::isFinitePositive(row.value), row.finitePositive);
        EXPECT_EQ(MathFloat::isFinite(row.value),
                  row.kind != MathFloat::Infinite && row.kind != MathFloat::NotANumber);
    }
}

TYPED_TEST(MathFloatTyped, ToleranceBoundsAndNaN) {
    using T = TypeParam;
    const T tol = T(0.25);
    // 1 and 1.25 are exactly tol apart: neither near nor strictly ordered.
    EXPECT_FALSE(MathFloat::isLess(T(1), T(1.25), tol));
    EXPECT_FALSE(MathFloat::isLessOrNear(T(1.25), T(1), tol));
    EXPECT_FALSE(MathFloat::isGreater(T(1.25), T(1), tol));
    EXPECT_FALSE(MathFloat::isGreaterOrNear(T(1), T(1.25), tol));
    EXPECT_TRUE(MathFloat::isLess(T(1), T(1.5), tol));
    EXPECT_TRUE(MathFloat::isLessOrNear(T(1.125), T(1), tol));
    EXPECT_TRUE(MathFloat::isGreaterOrNear(T(1), T(1.125), tol));

    const T nan = std::numeric_limits<T>::quiet_NaN();
    const T inf = std::numeric_limits<T>::infinity();
    EXPECT_FALSE(MathFloat::isLessOrNear(nan, T(0), tol));
    EXPECT_FALSE(MathFloat::isGreaterOrNear(T(0), nan, tol));
    EXPECT_FALSE(MathFloat::isNearlyEqual(nan, nan, T(1)));
    EXPECT_TRUE(MathFloat::isNearlyEqual(inf, inf, T(0)));
    EXPECT_FALSE(MathFloat::isNearlyEqual(inf, std::numeric_limits<T>::max(), T(1)));
    EXPECT_FALSE(MathFloat::isNearlyEqual(inf, -inf, T(1)));
    // Relative to the larger magnitude, with an absolute floor near zero.
    EXPECT_TRUE(MathFloat::isNearlyEqual(T(1000), T(1001), T(1e-3)));
    EXPECT_FALSE(MathFloat::isNearlyEqual(T(1000), T(1002), T(1e-3)));
    EXPECT_FALSE(MathFloat::isNearlyEqual(T(0), T(1e-6), T(1e-3)));
    EXPECT_TRUE(MathFloat::isNearlyEqual(T(0), T(1e-6), T(1e-3), T(1e-5)));
}

TYPED_TEST(MathFloatTyped, NeighboursAndUlpDistance) {
    using T = TypeParam;
    using L = std::numeric_limits<T>;
    EXPECT_EQ(MathFloat::nextBelow(T(1)), T(1) - L::epsilon() / 2);
    EXPECT_EQ(MathFloat::nextAbove(T(1)), T(1) + L::epsilon());
    EXPECT_EQ(MathFloat::nextAbove(-T(0)), L::denorm_min());
    EXPECT_EQ(MathFloat::nextBelow(L::lowest()), -L::infinity());

    EXPECT_EQ(MathFloat::ulpDistance(T(1), MathFloat::nextAbove(T(1))), 1U);
    EXPECT_EQ(MathFloat::ulpDistance(T(0), -T(0)), 0U);
    // Across zero the distance counts the subnormals on both sides.
    EXPECT_EQ(MathFloat::ulpDistance(-L::denorm_min(), L::denorm_min()), 2U);
    EXPECT_EQ(MathFloat::ulpDistance(L::max(), L::infinity()), 1U);
    EXPECT_EQ(MathFloat::ulpDistance(T(1), L::quiet_NaN()), std::numeric_limits<uint64_t>::max());
}

TYPED_TEST(MathFloatTyped, IntegerPowers) {
    using T = TypeParam;
    const struct {
        T x;
        int n;
        T expected;
    } rows[] = {
        {T(2), 0, T(1)},
        {T(0), 0, T(1)},
        {T(3), 5, T(243)},
        {T(-2), 3, T(-8)},
        {T(2), -3, T(0.125)},
        {T(10), 1, T(10)},
        {T(0), -1, std::numeric_limits<T>::infinity()},
        {T(2), -149, std::ldexp(T(1), -149)},
        {T(0.5), 2, T(0.25)},
        {T(2), 64, std::ldexp(T(1), 64)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.x << "^" << row.n);
        EXPECT_EQ(MathFloat::pow(row.x, row.n), row.expected);
    }
    // The most negative exponent is negated without overflow.
    EXPECT_EQ(MathFloat::pow(T(1), std::numeric_limits<int>::min()), T(1));
}
