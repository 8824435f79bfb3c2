// Qn::RnStdUniformRng<T>: uniform values on [0, 1] from the runtime's rand().
//
// A draw is a 15-bit value of rand() times 1/32767, so 0 and 1 are both
// reachable. Where RAND_MAX is wider than 15 bits the top 15 bits of rand() are
// taken, so every platform gives the same range. All generators of this class
// share the runtime's single rand() state: seeding or restarting one reseeds
// them all.
//
// Thread-safety: none; rand() is process-wide state.
#pragma once

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <type_traits>

#include <base/rnUnitIntervalRng.h>

namespace Qn {

template <class T>
class RnStdUniformRng : public RnUnitIntervalRng<T, RnStdUniformRng<T>> {
  public:
    // 1/32767 in T.
    static constexpr T Scale = std::is_same_v<T, float> ? T(3.051851e-5f) : T(3.051850947599719e-5);

    // Leaves the runtime's state alone; restart() then reseeds with 1, the
    // runtime's initial seed.
    RnStdUniformRng() : _seed(1) {}
    // Stores seed and reseeds the runtime with it.
    explicit RnStdUniformRng(std::uint32_t seed);

    // A 15-bit value of rand(): its top 15 bits where RAND_MAX is wider.
    static int rand15() {
        static_assert(RAND_MAX >= 32767 && ((unsigned(RAND_MAX) + 1) & unsigned(RAND_MAX)) == 0,
                      "RAND_MAX is 2^k - 1 with k >= 15");
        constexpr int shift = std::bit_width(unsigned(RAND_MAX)) - 15;
        return std::rand() >> shift;
    }

    // One draw; the body of every other draw.
    // Always inlined: callers in other modules get the draw without a call.
    [[gnu::always_inline]] T eval() { return T(rand15()) * Scale; }
    // One draw mapped to [min, max]: rand * (max - min) * (1/32767) + min.
    T eval(T min, T max) { return T(rand15()) * (max - min) * Scale + min; }
    // One draw scaled: rand * scale * (1/32767).
    T eval(T scale) { return T(rand15()) * scale * Scale; }

    // Reseeds the runtime with the stored seed.
    void restart() override;
    const char* getName() const override;

  private:
    std::uint32_t _seed;
};

extern template class QN_BASE_API RnEvalRng<float, RnStdUniformRng<float>>;
extern template class QN_BASE_API RnEvalRng<double, RnStdUniformRng<double>>;
extern template class QN_BASE_API RnUnitIntervalRng<float, RnStdUniformRng<float>>;
extern template class QN_BASE_API RnUnitIntervalRng<double, RnStdUniformRng<double>>;
extern template class QN_BASE_API RnStdUniformRng<float>;
extern template class QN_BASE_API RnStdUniformRng<double>;

}  // namespace Qn

#include <base/rnStdUniformRng.imp>
