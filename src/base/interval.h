// Qn::Interval<T>: a pair of bounds, lower then upper. It only holds them: whether
// the bounds are inclusive is up to the operation that produced the interval.
#pragma once

namespace Qn {

template <class T>
class Interval {
  public:
    constexpr Interval() = default;
    constexpr Interval(T lower, T upper) : _lower(lower), _upper(upper) {}

    constexpr T getLower() const { return _lower; }
    constexpr T getUpper() const { return _upper; }
    constexpr void setLower(T lower) { _lower = lower; }
    constexpr void setUpper(T upper) { _upper = upper; }

    friend constexpr bool operator==(const Interval& a, const Interval& b) {
        return a._lower == b._lower && a._upper == b._upper;
    }
    friend constexpr bool operator!=(const Interval& a, const Interval& b) { return !(a == b); }

  private:
    T _lower{};
    T _upper{};
};

}  // namespace Qn
