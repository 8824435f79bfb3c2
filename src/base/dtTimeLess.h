// Qn::DtTimeLess: an exact strict weak order of Qn::DtTime values, the
// comparator for sorted containers and algorithms.
//
// Two times are ordered by their values in seconds (count x denominator /
// numerator) through 128-bit cross products, which cannot overflow for any
// counts and rates and respect negative rate numerators. Equal instants at
// different rates are equivalent: 1 tick at 24/1 and 25 ticks at 600/1 are
// neither less nor greater. The comparison operators of Qn::DtTime keep their
// 64-bit cross products, which wrap (see dtTime.h). Stateless, inline,
// allocation-free and thread-safe.
//
//   std::map<Qn::DtTime, Clip, Qn::DtTimeLess> timeline;
//   std::sort(times.begin(), times.end(), Qn::DtTimeLess());
#pragma once

#include <compare>

#include <base/dtExact.h>
#include <base/dtTime.h>

namespace Qn {

struct DtTimeLess {
    // Whether a is an earlier instant than b.
    bool operator()(const DtTime& a, const DtTime& b) const { return compare(a, b) < 0; }

    // The order of the two instants; equivalent when they are the same instant.
    static std::weak_ordering compare(const DtTime& a, const DtTime& b) {
        const Rational ra = a.getRate(), rb = b.getRate();
        // a < b exactly when ca x da / na < cb x db / nb; multiplying both sides
        // by na x nb reverses the sense when exactly one numerator is negative.
        const DtInt128 lhs =
            DtInt128{a.getCount()} * (int64_t{ra.getDenominator()} * rb.getNumerator());
        const DtInt128 rhs =
            DtInt128{b.getCount()} * (int64_t{rb.getDenominator()} * ra.getNumerator());
        const bool reversed = (ra.getNumerator() < 0) != (rb.getNumerator() < 0);
        if (lhs == rhs) return std::weak_ordering::equivalent;
        return (lhs < rhs) != reversed ? std::weak_ordering::less : std::weak_ordering::greater;
    }
};

}  // namespace Qn
