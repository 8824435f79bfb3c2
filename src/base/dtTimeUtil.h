// Qn::DtTimeUtil: moves Qn::DtTime values across the boundary to the outside
// world: the DtString text form, seconds in floating point, and intervals.
//
// The DtString is three decimal integers separated by single blanks: the count
// (64-bit), the rate numerator and the rate denominator (32-bit each), so that
// 100 ticks at 30000/1001 is "100 30000 1001". It reads back exactly. Stateless
// and thread-safe.
//
//   Qn::ArrayPtrRet<char> text = Qn::DtTimeUtil::getDtStringFromDtTime(time);
//   Qn::DtTime again = Qn::DtTimeUtil::getDtTimeFromDtString(text.get());
#pragma once

#include <base/arrayPtr.h>
#include <base/dtTime.h>
#include <base/interval.h>

namespace Qn {

class QN_BASE_API DtTimeUtil {
  public:
    DtTimeUtil() = delete;

    // The DtString of time, in a new zero-terminated array the caller owns.
    static ArrayPtrRet<char> getDtStringFromDtTime(const DtTime& time);

    // The time a DtString names. The text is split at blanks (runs of blanks
    // count as one, leading ones are skipped) and only its first three fields
    // are read; each field stops at its first character that is not part of
    // the number, so "24abc" reads as 24. A count that is not a number reads
    // as 0. Raises:
    //  - DtEx::DtStringError NumeratorMalformed / DenominatorMalformed when a
    //    rate field has no digits or is missing (an empty text has no
    //    numerator); NumeratorOverflow / DenominatorOverflow when it does not
    //    fit in 32 bits;
    //  - DtEx::BadRate for a numerator written as 0,
    //    RationalEx::ExDenominatorZero for a denominator written as 0.
    // A negative denominator moves its sign to the numerator. A null text
    // reads as the empty text.
    static DtTime getDtTimeFromDtString(const char* text);

    // The time in seconds, count x (denominator / numerator), computed in the
    // precision of the result.
    static float getSecondsFloat(const DtTime& time);
    static double getSecondsDouble(const DtTime& time);

    // The time at rate nearest to seconds toward zero: (numerator /
    // denominator) x seconds in the precision of seconds, truncated. Raises
    // DtEx::BadRate for a rate with a zero numerator.
    static DtTime getDtTimeFromSeconds(const Rational& rate, double seconds);
    static DtTime getDtTimeFromSeconds(const Rational& rate, float seconds);

    // The counts at time's rate (the count of time is not used) of an interval
    // of seconds, widened to include every tick that starts inside it: the
    // lower bound truncated toward zero, the upper bound's ceiling. The float
    // form computes in single precision, its ceiling through a 32-bit integer.
    static Interval<DtTimeIndex> getInclusiveDtTimeIndexInterval(const DtTime& time,
                                                                 const Interval<double>& seconds);
    static Interval<DtTimeIndex> getInclusiveDtTimeIndexInterval(const DtTime& time,
                                                                 const Interval<float>& seconds);

    // The seconds of an interval of counts at time's rate.
    static Interval<double> getSecondsIntervalDouble(const DtTime& time,
                                                     const Interval<DtTimeIndex>& counts);
    static Interval<float> getSecondsIntervalFloat(const DtTime& time,
                                                   const Interval<DtTimeIndex>& counts);
};

}  // namespace Qn
