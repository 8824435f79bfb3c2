// Qn::DtRefTimeFactory: the process-wide maker of reference times, owning the
// system reference clock (the hardware counter, named "HwCounter"). Reference
// counts are ticks since the factory was made.
//
// getInstance() is safe from any thread, but the first call takes the clock's
// start stamp, so the discrete-time package's start-up makes the factory before
// other threads run. Every other operation only reads the clock and is safe
// from any thread.
#pragma once

#include <base/dtRefClockSource.h>
#include <base/dtRefTime.h>
#include <base/objPtr.h>

namespace Qn {

class QN_BASE_API DtRefTimeFactory {
  public:
    // The factory, made on first use; it lives until the library is unloaded.
    static DtRefTimeFactory& getInstance();

    DtRefTimeFactory(const DtRefTimeFactory&) = delete;
    DtRefTimeFactory& operator=(const DtRefTimeFactory&) = delete;

    // The reference time now.
    DtRefTime create() const;
    // count ticks of the clock named clockName, which must be this factory's
    // clock (exact, case-sensitive); otherwise raises DtRefClockEx::SourceMismatch.
    DtRefTime create(DtTimeIndex count, const char* clockName) const;
    // base moved by offset ticks at offsetRate, the offset converted toward
    // zero to the clock's rate with DtTimeIndex::convert, whose 32-bit factor
    // wraps with the nanosecond counter: 30 ticks at 30000/1001 come out as
    // 272620 nanoseconds instead of 1001000000. Use createExact.
    DtRefTime create(const DtRefTime& base, DtTimeIndex offset, Rational offsetRate) const;
    // base moved by offset ticks at offsetRate, the offset converted exactly
    // (DtTimeIndex::convertExact) to the clock's rate and rounded as asked.
    // Raises DtEx::BadRefRate when base is not of this clock's rate,
    // DtEx::BadRate for a zero offsetRate, DtEx::ExOverflow when the count does
    // not fit in 64 bits.
    DtRefTime createExact(const DtRefTime& base, DtTimeIndex offset, Rational offsetRate,
                          DtRounding rounding = DtRounding::TowardZero) const;

    const DtRefClockSource& getClockSource() const { return *_source; }

  private:
    DtRefTimeFactory();
    ~DtRefTimeFactory();

    ObjPtr<DtRefClockSource> _source;
};

}  // namespace Qn
