// Integer powers, powers of two, logarithms and bit reversal.
#include <base/mathInt.h>

#include <gtest/gtest.h>

#include <cstdint>

using Qn::MathInt;

TEST(MathInt, PowersWrapInsteadOfOverflowing) {
    static_assert(MathInt::pow(10, 9) == 1000000000);
    EXPECT_EQ(MathInt::pow(7, 0), 1);
    EXPECT_EQ(MathInt::pow(0, 0), 1);
    EXPECT_EQ(MathInt::pow(-3, 3), -27);
    EXPECT_EQ(MathInt::pow(int64_t{3}, 39), int64_t{4052555153018976267});
    EXPECT_EQ(MathInt::pow(uint64_t{2}, 64), 0U);
    EXPECT_EQ(MathInt::pow(int32_t{2}, 31), INT32_MIN);
    // Short types multiply in unsigned int, so 65535^2 wraps to 1 instead of
    // overflowing a promoted int.
    EXPECT_EQ(MathInt::pow(uint16_t{65535}, 2), uint16_t{1});
    EXPECT_EQ(MathInt::pow(uint8_t{3}, 5), uint8_t{243});
}

TEST(MathInt, PowersOfTwoAndLogarithms) {
    const struct {
        uint64_t x;
        bool isPower;
        uint64_t ceil;
        int floorLog;
        int ceilLog;
    } rows[] = {
        {0, false, 1, -1, -1},
        {1, true, 1, 0, 0},
        {2, true, 2, 1, 1},
        {3, false, 4, 1, 2},
        {100, false, 128, 6, 7},
        {uint64_t{1} << 63, true, uint64_t{1} << 63, 63, 63},
        {(uint64_t{1} << 63) + 1, false, 0, 63, 64},
        {UINT64_MAX, false, 0, 63, 64},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.x);
        EXPECT_EQ(MathInt::isPowerOfTwo(row.x), row.isPower);
        EXPECT_EQ(MathInt::ceilPowerOfTwo(row.x), row.ceil);
        EXPECT_EQ(MathInt::floorLog2(row.x), row.floorLog);
        EXPECT_EQ(MathInt::ceilLog2(row.x), row.ceilLog);
    }
}

TEST(MathInt, Primes) {
    static_assert(MathInt::getPrime(0) == 2);
    const uint32_t first[] = {2, 3, 5, 7, 11, 13, 17, 19, 23, 29};
    for (unsigned int k = 0; k < 10; ++k) EXPECT_EQ(MathInt::getPrime(k), first[k]) << k;
    EXPECT_EQ(MathInt::getPrime(25), 101U);
}

TEST(MathInt, ReversesBits) {
    EXPECT_EQ(MathInt::reverseBits(0U), 0U);
    EXPECT_EQ(MathInt::reverseBits(1U), 0x80000000U);
    EXPECT_EQ(MathInt::reverseBits(0x80000000U), 1U);
    EXPECT_EQ(MathInt::reverseBits(0x12345678U), 0x1E6A2C48U);
    EXPECT_EQ(MathInt::reverseBits(MathInt::reverseBits(0xDEADBEEFU)), 0xDEADBEEFU);
}
