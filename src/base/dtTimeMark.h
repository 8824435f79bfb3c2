// Qn::DtTimeMark: ties a time on a stream's own time line to the reference-clock
// time it happened at, so that either can be evaluated from the other.
// A plain value type.
//
//   Qn::DtTimeMark mark(Qn::DtTime(0, 24, 1), factory.create());
//   Qn::DtTimeMark later = mark.evalTimeExact(factory.create());  // frame now
#pragma once

#include <iosfwd>

#include <base/dtRefTime.h>
#include <base/dtTime.h>

namespace Qn {

class QN_BASE_API DtTimeMark {
  public:
    // 0 at 1/1 tied to the default reference time.
    DtTimeMark() = default;
    DtTimeMark(const DtTime& streamTime, const DtRefTime& refTime)
        : _streamTime(streamTime), _refTime(refTime) {}

    const DtTime& getStreamTime() const { return _streamTime; }
    const DtRefTime& getRefTime() const { return _refTime; }

    // The mark at refTime: the stream time moved by the reference ticks since
    // this mark, converted toward zero to the stream rate with
    // DtTimeIndex::convert. Its 32-bit factor wraps with the nanosecond
    // counter: one second of reference ticks at a stream rate of 30000/1001
    // gives 110043 frames instead of 29; use evalTimeExact. Raises
    // RationalEx::ExDenominatorZero when this mark's reference time has no rate.
    DtTimeMark evalTime(const DtRefTime& refTime) const;
    // The mark at streamTime: the reference time moved by the stream ticks since
    // this mark (counted at streamTime's rate, the mark's stream time converted
    // toward zero to it), converted toward zero to the reference clock's rate
    // (of Qn::DtRefTimeFactory's clock) by DtRefTimeFactory::create, whose
    // 32-bit factor wraps in the same way; use evalTimeExact.
    DtTimeMark evalTime(const DtTime& streamTime) const;

    // The mark at refTime, exact: the stream time of the frame that contains
    // the instant, this mark's stream time plus the elapsed reference ticks
    // converted in 128 bits to the stream rate, rounded toward negative
    // infinity (one second at 1000000000/1 is 29 frames at 30000/1001). Right
    // for every rate and any instant whose count fits in 64 bits. Raises
    // DtEx::BadRefRate when refTime is not of this mark's clock (its rate
    // differs, or this mark's reference time has no rate), DtEx::ExOverflow
    // when a count does not fit in 64 bits.
    DtTimeMark evalTimeExact(const DtRefTime& refTime) const;
    // The mark at streamTime, exact: the first reference tick at or after the
    // instant, this mark's reference time plus the exact time between the two
    // stream times (of any two rates) in ticks of this mark's clock, rounded
    // toward positive infinity, so that evalTimeExact of the result gives
    // streamTime's frame back whenever a frame lasts at least one tick. Raises
    // DtEx::BadRefRate when this mark's reference time has no rate,
    // DtEx::ExOverflow when the count does not fit in 64 bits.
    DtTimeMark evalTimeExact(const DtTime& streamTime) const;

    // Writes "(<stream time> <reference time>)".
    std::ostream& dump(std::ostream& stream) const;

  private:
    DtTime _streamTime;
    DtRefTime _refTime;
};

inline std::ostream& operator<<(std::ostream& stream, const DtTimeMark& mark) {
    return mark.dump(stream);
}

}  // namespace Qn
