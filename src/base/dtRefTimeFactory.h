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
    // zero to the clock's rate.
    DtRefTime create(const DtRefTime& base, DtTimeIndex offset, Rational offsetRate) const;

    const DtRefClockSource& getClockSource() const { return *_source; }

  private:
    DtRefTimeFactory();
    ~DtRefTimeFactory();

    ObjPtr<DtRefClockSource> _source;
};

}  // namespace Qn
