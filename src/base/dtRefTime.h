// Qn::DtRefTime: a time on the system reference clock, a count of the clock's
// ticks at the clock's rate. Only Qn::DtRefTimeFactory makes values other than
// the default, which is 0 at the rate 0/1: a time no clock has produced yet.
// A plain value type: no locking, no allocation.
#pragma once

#include <iosfwd>

#include <base/dtTime.h>

namespace Qn {

class QN_BASE_API DtRefTime {
  public:
    DtRefTime() = default;

    DtTimeIndex getCount() const { return _count; }
    Rational getRate() const { return _rate; }

    // Writes "(count @ (n/d=value))".
    std::ostream& dump(std::ostream& stream) const { return DtTime::dump(stream, _count, _rate); }

  private:
    friend class DtRefTimeFactory;
    friend class DtTimeMark;
    DtRefTime(DtTimeIndex count, Rational rate) : _count(count), _rate(rate) {}

    DtTimeIndex _count;
    Rational _rate{0, 1};
};

inline std::ostream& operator<<(std::ostream& stream, const DtRefTime& time) {
    return time.dump(stream);
}

}  // namespace Qn
