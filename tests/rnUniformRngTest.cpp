#include <base/rnLecuyerUniformRng.h>
#include <base/rnNumRecUniformRng.h>
#include <base/rnStdUniformRng.h>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <vector>

#include <base/exInternalError.h>
#include <support/rnTestSupport.h>

namespace {

template <class T>
class RnUniformRngTest : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(RnUniformRngTest, Precisions);

// The shuffled congruential generator written out in 64-bit arithmetic; the
// slot is chosen in T as the generator does.
template <class T>
std::vector<std::uint32_t> numRecModel(std::uint32_t seed, int count) {
    const std::uint64_t m = 1771875, ia = 2416, ic = 374441;
    std::uint64_t state = (seed + ic) % m, table[97];
    for (auto& slot : table) slot = state = (ia * state + ic) % m;
    std::uint64_t last = state = (ia * state + ic) % m;
    std::vector<std::uint32_t> out;
    for (int i = 0; i < count; ++i) {
        const auto j = std::size_t(T(last) * Qn::RnNumRecUniformRng<T>::RM * T(97));
        last = table[j];
        table[j] = state = (ia * state + ic) % m;
        out.push_back(std::uint32_t(last));
    }
    return out;
}

// The combined generator written out with 64-bit remainders instead of Schrage's method.
std::vector<std::int64_t> lecuyerModel(std::int64_t state1, std::int64_t state2, int count) {
    std::vector<std::int64_t> out;
    for (int i = 0; i < count; ++i) {
        state1 = state1 * 40014 % 2147483563;
        state2 = state2 * 40692 % 2147483399;
        std::int64_t z = state2 + state1 - 2147483563;
        if (z < 1) z += 2147483562;
        out.push_back(z);
    }
    return out;
}

template <class T>
std::vector<T> draw(Qn::RnRng<T>& rng, int count) {
    std::vector<T> values(count);
    rng.getSequence(count, values.data());
    return values;
}

class BrokenNumRec : public Qn::RnNumRecUniformRng<double> {
  public:
    void corrupt() { _last = 1.0; }
};

}  // namespace

TYPED_TEST(RnUniformRngTest, NumRecFollowsTheShuffledCongruentialSequence) {
    using T = TypeParam;
    for (std::uint32_t seed : {0u, 1u, 4000000000u}) {
        SCOPED_TRACE(seed);
        Qn::RnNumRecUniformRng<T> rng(seed);
        const auto model = numRecModel<T>(seed, 300);
        for (int i = 0; i < 300; ++i)
            ASSERT_EQ(rng(), T(model[i]) * Qn::RnNumRecUniformRng<T>::RM) << "draw " << i;
    }
    Qn::RnNumRecUniformRng<T> byDefault, zero(0), copy(0);
    EXPECT_EQ(draw(byDefault, 50), draw(zero, 50));
    const auto first = draw(copy, 20);
    Qn::RnNumRecUniformRng<T> copied(copy);
    EXPECT_EQ(draw(copied, 20), draw(copy, 20));
    copy.restart();
    EXPECT_EQ(draw(copy, 20), first);
    EXPECT_STREQ(copy.getName(), "Numerical Recipes RAN2");
}

TYPED_TEST(RnUniformRngTest, NumRecScaledDraws) {
    using T = TypeParam;
    Qn::RnNumRecUniformRng<T> a(7), b(7);
    const T value = b.eval();
    EXPECT_EQ(a.eval(T(2), T(6)), T(2) + T(4) * value);
    EXPECT_EQ(a.eval(T(3)), T(3) * b.eval());
    T sample;
    a.getSample(sample);
    EXPECT_EQ(sample, b());
}

TEST(RnNumRecUniformRng, ShuffleIndexAssertionNamesItsPlace) {
    BrokenNumRec rng;
    rng.corrupt();
    try {
        rng.eval();
        FAIL() << "no exception";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.getReason(), "Assertion 'j < SHUFFLESIZE' failed.");
        EXPECT_STREQ(e.getFileName(), "rnNumRecUniformRng.imp");
        EXPECT_EQ(e.getLineNo(), 208);
    }
}

TYPED_TEST(RnUniformRngTest, LecuyerCombinesBothStatesFromSeed2) {
    using T = TypeParam;
    const T scale = std::is_same_v<T, float> ? T(4.656612873e-10f) : T(1.0 / 2147483563.0);
    Qn::RnLecuyerUniformRng<T> rng(1, 12345);
    const auto model = lecuyerModel(12345, 55555, 200);
    for (int i = 0; i < 200; ++i) ASSERT_EQ(rng(), T(model[i]) * scale) << "draw " << i;

    // seed1 takes no part: one-argument constructions all give one sequence.
    Qn::RnLecuyerUniformRng<T> one(1), two(2), byDefault;
    const auto sequence = draw(one, 30);
    EXPECT_EQ(draw(two, 30), sequence);
    EXPECT_EQ(draw(byDefault, 30), sequence);

    // restart() resets only state1: the second run goes on from state2 where it stands.
    one.restart();
    std::int64_t state2 = 55555;
    for (int i = 0; i < 30; ++i) state2 = state2 * 40692 % 2147483399;
    const auto second = lecuyerModel(99999, state2, 30);
    for (int i = 0; i < 30; ++i) ASSERT_EQ(one(), T(second[i]) * scale) << "draw " << i;
    EXPECT_STREQ(one.getName(), "Lecuyer");
}

TYPED_TEST(RnUniformRngTest, StdTakesFifteenBitsOfRand) {
    using T = TypeParam;
    Qn::RnStdUniformRng<T> rng(42);
    std::srand(42);
    std::vector<int> expected;
    for (int i = 0; i < 100; ++i)
        expected.push_back(std::rand() >> (std::bit_width(unsigned(RAND_MAX)) - 15));
    rng.restart();
    for (int i = 0; i < 100; ++i) {
        ASSERT_LE(expected[i], 32767);
        ASSERT_EQ(rng(), T(expected[i]) * Qn::RnStdUniformRng<T>::Scale);
    }
    // All generators share the runtime state: seeding another one restarts this one.
    Qn::RnStdUniformRng<T> other(42);
    EXPECT_EQ(rng(), T(expected[0]) * Qn::RnStdUniformRng<T>::Scale);
    EXPECT_EQ(rng.eval(T(1), T(3)), T(expected[1]) * T(2) * Qn::RnStdUniformRng<T>::Scale + T(1));
    EXPECT_EQ(rng.eval(T(5)), T(expected[2]) * T(5) * Qn::RnStdUniformRng<T>::Scale);
    EXPECT_EQ(T(32767) * Qn::RnStdUniformRng<T>::Scale, T(1));
    EXPECT_STREQ(rng.getName(), "Std OS-specific generator");
}

TYPED_TEST(RnUniformRngTest, UnitRangeDensityAndUniformity) {
    using T = TypeParam;
    Qn::RnNumRecUniformRng<T> numRec(3);
    Qn::RnLecuyerUniformRng<T> lecuyer(3, 77);
    Qn::RnStdUniformRng<T> std(3);
    for (Qn::RnRng<T>* rng : std::initializer_list<Qn::RnRng<T>*>{&numRec, &lecuyer, &std}) {
        SCOPED_TRACE(rng->getName());
        EXPECT_EQ(rng->getPdf(T(0)), T(1));
        EXPECT_EQ(rng->getPdf(T(1)), T(0));
        EXPECT_EQ(rng->getPdf(T(-0.1)), T(0));
        EXPECT_EQ(rng->getPdf(std::numeric_limits<T>::quiet_NaN()), T(0));
        EXPECT_EQ(rng->getEfficientMin(), T(0));
        EXPECT_EQ(rng->getEfficientMax(), T(1));
        EXPECT_EQ(rng->getEfficientWidth(), T(1));
        EXPECT_EQ(rng->getEfficientFraction(), T(1));
        const auto values = draw(*rng, 20000);
        for (T v : values) ASSERT_TRUE(v >= T(0) && v <= T(1));
        // 99 degrees of freedom: 148 is the 0.1% quantile.
        EXPECT_LT(RnTest::chiSquare(values, 100), 148.0);
        // Successive pairs fill the unit square evenly as well.
        std::vector<T> pairs;
        for (std::size_t i = 0; i + 1 < values.size(); i += 2)
            pairs.push_back(
                T(std::min(0.999999, std::floor(values[i] * 10.0) / 10 + values[i + 1] / 10.0)));
        EXPECT_LT(RnTest::chiSquare(pairs, 100), 148.0);
        std::vector<T> none(3, T(-1));
        rng->getSequence(0, none.data());
        EXPECT_EQ(none, std::vector<T>(3, T(-1)));
    }
}
