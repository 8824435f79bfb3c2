// Qn::DtTimeMark: ties a time on a stream's own time line to the reference-clock
// time it happened at, so that either can be evaluated from the other.
// A plain value type.
//
//   Qn::DtTimeMark mark(Qn::DtTime(0, 24, 1), factory.create());
//   Qn::DtTimeMark later = mark.evalTime(factory.create());  // frame now
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
    // this mark, converted toward zero to the stream rate. Raises
    // RationalEx::ExDenominatorZero when this mark's reference time has no rate.
    DtTimeMark evalTime(const DtRefTime& refTime) const;
    // The mark at streamTime: the reference time moved by the stream ticks since
    // this mark (counted at streamTime's rate), converted toward zero to the
    // reference clock's rate (of Qn::DtRefTimeFactory's clock).
    DtTimeMark evalTime(const DtTime& streamTime) const;

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
