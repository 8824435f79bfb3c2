// Qn::LgClock: the clock a logger reads when it starts: the hardware counter
// that stamps the entries, its frequency, and the calendar time of the banner.
//
// system() is the process's clock. A test derives its own to make a logger's
// start time and banner fixed:
//
//   struct FixedClock : Qn::LgClock {
//       uint64_t timeStamp() const override { return 1000; }
//   };
//
// Thread-safety: the system clock may be read from any thread.
#pragma once

#include <cstdint>
#include <ctime>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API LgClock {
  public:
    virtual ~LgClock();

    // The hardware counter now (Qn::HwCounter::timeStamp).
    virtual uint64_t timeStamp() const;
    // Ticks of the counter per second.
    virtual double getFrequency() const;
    // The local calendar time now.
    virtual std::tm getLocalTime() const;

    static const LgClock& system();

  private:
    static std::tm performLocalTime();
};

}  // namespace Qn
