// Qn::MathInt: powers, powers of two, base-2 logarithms and bit reversal of
// integers. Every operation is constexpr, allocation-free and thread-safe.
//
//   static_assert(Qn::MathInt::pow(10, 9) == 1000000000);
//   const uint64_t capacity = Qn::MathInt::ceilPowerOfTwo(request);   // 100 -> 128
//   const int levels = Qn::MathInt::floorLog2(size) + 1;
#pragma once

#include <bit>
#include <cstdint>
#include <type_traits>

namespace Qn {

class MathInt {
  public:
    MathInt() = delete;

    // base to the power exponent by repeated squaring; pow(b, 0) is 1. A result
    // that does not fit wraps around modulo 2^bits (two's complement for signed
    // types) instead of being undefined.
    template <class Int>
    static constexpr Int pow(Int base, unsigned int exponent) {
        static_assert(std::is_integral_v<Int>);
        // Unsigned, and at least as wide as unsigned int so that the products of
        // short types are not promoted to a signed int that could overflow.
        using U = std::common_type_t<std::make_unsigned_t<Int>, unsigned int>;
        U result = 1;
        for (U factor = static_cast<std::make_unsigned_t<Int>>(base); exponent != 0;
             exponent >>= 1) {
            if ((exponent & 1U) != 0)
                result = static_cast<std::make_unsigned_t<Int>>(result * factor);
            factor = static_cast<std::make_unsigned_t<Int>>(factor * factor);
        }
        return static_cast<Int>(result);
    }

    // Whether x is 1, 2, 4, 8, ... (0 is not).
    static constexpr bool isPowerOfTwo(uint64_t x) { return std::has_single_bit(x); }
    // The smallest power of two at least x (1 for 0), or 0 when it does not fit
    // in 64 bits (x above 2^63).
    static constexpr uint64_t ceilPowerOfTwo(uint64_t x) {
        return x > (uint64_t{1} << 63) ? 0 : std::bit_ceil(x);
    }
    // The exponent of the largest power of two at most x, and of the smallest at
    // least x; -1 for 0.
    static constexpr int floorLog2(uint64_t x) { return std::bit_width(x) - 1; }
    static constexpr int ceilLog2(uint64_t x) {
        return x <= 1 ? floorLog2(x) : std::bit_width(x - 1);
    }

    // The k-th prime number: 2 for k = 0, 3 for k = 1, 5, 7, 11, ... (the
    // default bases of the components of multi-dimensional radical inverses).
    // Trial division: meant for small k.
    static constexpr uint32_t getPrime(unsigned int k) {
        uint32_t candidate = 2;
        for (;; ++candidate) {
            bool prime = true;
            for (uint32_t d = 2; d * d <= candidate && prime; ++d) prime = candidate % d != 0;
            if (prime && k-- == 0) return candidate;
        }
    }

    // The 32 bits of v in reverse order: bit 0 becomes bit 31.
    static constexpr uint32_t reverseBits(uint32_t v) {
        v = ((v >> 1) & 0x55555555U) | ((v & 0x55555555U) << 1);
        v = ((v >> 2) & 0x33333333U) | ((v & 0x33333333U) << 2);
        v = ((v >> 4) & 0x0F0F0F0FU) | ((v & 0x0F0F0F0FU) << 4);
        v = ((v >> 8) & 0x00FF00FFU) | ((v & 0x00FF00FFU) << 8);
        return (v >> 16) | (v << 16);
    }
};

}  // namespace Qn
