// Qn::RnConstants<T>: the constants the samplers compute with, written out in
// each precision so that float generators never round through double.
#pragma once

namespace Qn {

template <class T>
struct RnConstants;

template <>
struct RnConstants<float> {
    static constexpr float TwoPi = 6.2831855f;
    static constexpr float InvPi = 0.31830987f;
    static constexpr float InvTwoPi = 0.15915494f;
    static constexpr float InvFourPi = 0.07957747f;
};

template <>
struct RnConstants<double> {
    static constexpr double TwoPi = 6.283185307179586;
    static constexpr double InvPi = 0.3183098861837907;
    static constexpr double InvTwoPi = 0.15915494309189535;
    static constexpr double InvFourPi = 0.07957747154594767;
};

}  // namespace Qn
