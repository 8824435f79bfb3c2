// Qn::RnLecuyerUniformRng<T>: uniform values on (0, 1) from two combined
// multiplicative congruential generators (moduli 2147483563 and 2147483399).
//
// Seeding sets only the first state, from seed2; seed1 is stored but takes no
// part in the sequence, and the second state starts at the fixed value
// InitialState2 whatever the seeds, so that equal seed2 values give equal
// sequences. Neither restart touches the second state: a restarted generator
// repeats the first state's evolution but combines it with the second state
// where that one stands.
//
// The float instance scales by 2^-31 and the double instance by 1/2147483563;
// the float conversion of the combined state can round up to 1 for the largest
// few states.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <cstdint>
#include <type_traits>

#include <base/rnUnitIntervalRng.h>

namespace Qn {

template <class T>
class RnLecuyerUniformRng : public RnUnitIntervalRng<T, RnLecuyerUniformRng<T>> {
  public:
    static constexpr std::int32_t M1 = 2147483563, A1 = 40014, Q1 = 53668, R1 = 12211;
    static constexpr std::int32_t M2 = 2147483399, A2 = 40692, Q2 = 52774, R2 = 3791;
    static constexpr std::uint32_t DefaultSeed1 = 55555;
    static constexpr std::uint32_t DefaultSeed2 = 99999;
    // Start of the second state for every generator.
    static constexpr std::int32_t InitialState2 = 55555;
    // Scale of the combined state to the unit interval: 2^-31 for float, 1/M1
    // for double.
    static constexpr T Scale =
        std::is_same_v<T, float> ? T(4.656612873e-10f) : T(4.656613057391769e-10);

    explicit RnLecuyerUniformRng(std::uint32_t seed1 = DefaultSeed1,
                                 std::uint32_t seed2 = DefaultSeed2);

    // One draw; the body of every other draw.
    // Always inlined: callers in other modules get the draw without a call.
    [[gnu::always_inline]] T eval() {
        _state1 = advance<A1, Q1, R1, M1>(_state1);
        _state2 = advance<A2, Q2, R2, M2>(_state2);
        // The sum of both states exceeds 32 bits; the result after subtracting
        // M1 fits again.
        auto z = static_cast<std::int32_t>(std::int64_t(_state2) + _state1 - M1);
        if (z < 1) z += M1 - 1;
        return T(z) * Scale;
    }
    using RnUnitIntervalRng<T, RnLecuyerUniformRng<T>>::eval;

    // Stores both seeds and sets the first state from seed2.
    void restart(std::uint32_t seed1, std::uint32_t seed2);
    // Sets the first state from the stored seed2 again.
    void restart() override;
    const char* getName() const override;

  private:
    // state = A * state mod M by Schrage's method, without overflow in 32 bits.
    template <std::int32_t A, std::int32_t Q, std::int32_t R, std::int32_t M>
    static std::int32_t advance(std::int32_t state) {
        const std::int32_t k = state / Q;
        state = A * (state - k * Q) - k * R;
        return state < 0 ? state + M : state;
    }

    std::uint32_t _seed1;
    std::uint32_t _seed2;
    std::int32_t _state1;
    std::int32_t _state2;
};

extern template class QN_BASE_API RnEvalRng<float, RnLecuyerUniformRng<float>>;
extern template class QN_BASE_API RnEvalRng<double, RnLecuyerUniformRng<double>>;
extern template class QN_BASE_API RnUnitIntervalRng<float, RnLecuyerUniformRng<float>>;
extern template class QN_BASE_API RnUnitIntervalRng<double, RnLecuyerUniformRng<double>>;
extern template class QN_BASE_API RnLecuyerUniformRng<float>;
extern template class QN_BASE_API RnLecuyerUniformRng<double>;

}  // namespace Qn

#include <base/rnLecuyerUniformRng.imp>
