// Qn::HwCounterEng: the engine behind Qn::HwCounter, a high-resolution counter
// with an exact rational rate.
//
// A raw counter frequency of 2^31 or more does not fit the 32-bit rate
// numerator, so the engine shifts the raw value right until it does: the scaled
// counter runs at numerator/denominator ticks per second, exactly. An engine is
// read-only once built and may be used from any thread.
#pragma once

#include <cstdint>
#include <iosfwd>

#include <base/objPtr.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API HwCounterEng {
  public:
    // The engine of this machine's performance counter; the caller owns it.
    // Raises ExSysErrorANSI when the counter's frequency cannot be queried.
    static ObjPtrRet<HwCounterEng> create();

    virtual ~HwCounterEng();
    // The scaled counter value now.
    virtual uint64_t timeStamp() const = 0;
    // Seconds from t0 to t1 (negative when t1 is earlier), one multiplication.
    virtual double seconds(uint64_t t0, uint64_t t1) const;
    // The scaled counter value now, in seconds.
    virtual double seconds() const;
    // Seconds per scaled tick.
    virtual double resolution() const;
    virtual int getRateNumerator() const;
    virtual int getRateDenominator() const;
    // Three lines: the class, the rate and the cycle.
    virtual void dump(std::ostream& stream) const = 0;

    // How many bits the raw counter value is shifted right.
    unsigned getShift() const { return _shift; }

  protected:
    // Applies the scaling rule to a raw frequency in ticks per second. A zero
    // frequency is an assertion failure.
    explicit HwCounterEng(uint64_t frequency);
    HwCounterEng(const HwCounterEng&) = default;
    HwCounterEng& operator=(const HwCounterEng&) = default;

    int _rateNumerator;
    int _rateDenominator;
    unsigned _shift;
    double _cycle;
};

}  // namespace Qn
