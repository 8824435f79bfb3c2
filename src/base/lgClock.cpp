#include <base/lgClock.h>

#include <base/hwCounter.h>

namespace Qn {

LgClock::~LgClock() = default;

uint64_t LgClock::timeStamp() const { return HwCounter::timeStamp(); }

double LgClock::getFrequency() const {
    return double(HwCounter::getRateNumerator()) / HwCounter::getRateDenominator();
}

std::tm LgClock::getLocalTime() const { return performLocalTime(); }

const LgClock& LgClock::system() {
    static const LgClock clock;
    return clock;
}

}  // namespace Qn
