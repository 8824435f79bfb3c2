// Qn::DtRefClockSource: a clock that reference times count: a name, an exact
// rate in ticks per second and the current count.
#pragma once

#include <cstdint>

#include <base/rational.h>

namespace Qn {

class QN_BASE_API DtRefClockSource {
  public:
    virtual ~DtRefClockSource();

    // The clock's name (a static text) and its rate.
    const char* getName() const { return _name; }
    Rational getRate() const { return _rate; }
    // The current count of the clock.
    virtual int64_t getValue() const = 0;

  protected:
    DtRefClockSource(const char* name, Rational rate) : _name(name), _rate(rate) {}
    DtRefClockSource(const DtRefClockSource&) = default;
    DtRefClockSource& operator=(const DtRefClockSource&) = default;

  private:
    const char* _name;
    Rational _rate;
};

}  // namespace Qn
