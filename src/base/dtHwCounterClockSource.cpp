#include <base/dtHwCounterClockSource.h>

#include <base/hwCounter.h>

namespace Qn {

DtHwCounterClockSource::DtHwCounterClockSource()
    : DtRefClockSource("HwCounter",
                       Rational(HwCounter::getRateNumerator(), HwCounter::getRateDenominator())),
      _start(HwCounter::timeStampInline()) {}

int64_t DtHwCounterClockSource::getValue() const {
    return static_cast<int64_t>(HwCounter::timeStampInline() - _start);
}

}  // namespace Qn
