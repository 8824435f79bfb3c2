// Qn::RnNumRecUniformRng<T>: uniform values on [0, 1) from a small linear
// congruential generator decorrelated by a 97-slot shuffle table.
//
// Each value is the table entry picked by the previous value; the slot is then
// refilled with the next congruential state. The generator owns its table.
// Values are multiples of 1/1771875 below 1. Two generators built with the same
// seed give the same sequence; restart() repeats it from the first value.
//
// Thread-safety: none; each thread uses its own generator.
#pragma once

#include <cstdint>

#include <base/arrayPtr.h>
#include <base/assertions.h>
#include <base/rnUnitIntervalRng.h>

namespace Qn {

template <class T>
class RnNumRecUniformRng : public RnUnitIntervalRng<T, RnNumRecUniformRng<T>> {
  public:
    static constexpr std::uint32_t M = 1771875;
    static constexpr std::uint32_t IA = 2416;
    static constexpr std::uint32_t IC = 374441;
    static constexpr std::uint32_t SHUFFLESIZE = 97;
    // 1 / M, rounded once to T.
    static constexpr T RM = T(1) / T(M);

    // Seeds the table from seed (the default is seed 0).
    explicit RnNumRecUniformRng(std::uint32_t seed = 0);
    RnNumRecUniformRng(const RnNumRecUniformRng& other);
    RnNumRecUniformRng& operator=(const RnNumRecUniformRng& other);
    ~RnNumRecUniformRng() override = default;

    // One draw; the body of every other draw.
    // Always inlined: callers in other modules get the draw without a call.
    [[gnu::always_inline]] T eval() {
        const auto j = static_cast<std::uint32_t>(_last * T(SHUFFLESIZE));
        if (j >= SHUFFLESIZE) [[unlikely]]
            shuffleIndexFailed();
        _last = T(_table[j]) * RM;
        _state = step(_state);
        _table[j] = _state;
        return _last;
    }
    using RnUnitIntervalRng<T, RnNumRecUniformRng<T>>::eval;

    // Reseeds from the stored seed: the sequence starts again.
    void restart() override;
    const char* getName() const override;

  protected:
    // The congruential step; IA * state + IC stays below 2^32 for state < M.
    static std::uint32_t step(std::uint32_t state) { return (IA * state + IC) % M; }
    [[noreturn]] static void shuffleIndexFailed();

    T _last;
    std::uint32_t _seed;
    std::uint32_t _state;
    ArrayPtr<std::uint32_t> _table;
};

extern template class QN_BASE_API RnEvalRng<float, RnNumRecUniformRng<float>>;
extern template class QN_BASE_API RnEvalRng<double, RnNumRecUniformRng<double>>;
extern template class QN_BASE_API RnUnitIntervalRng<float, RnNumRecUniformRng<float>>;
extern template class QN_BASE_API RnUnitIntervalRng<double, RnNumRecUniformRng<double>>;
extern template class QN_BASE_API RnNumRecUniformRng<float>;
extern template class QN_BASE_API RnNumRecUniformRng<double>;

}  // namespace Qn

#include <base/rnNumRecUniformRng.imp>
