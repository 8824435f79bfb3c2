#include <base/hwCounterEng.h>

#include <base/assertions.h>
#include <base/hwCounterIA32.h>
#include <base/osCpuInfo.h>

namespace Qn {

ObjPtrRet<HwCounterEng> HwCounterEng::create() {
    return ObjPtrRet<HwCounterEng>(new HwCounterIA32(OsCpuInfo::getHwCounterFrequency()));
}

HwCounterEng::HwCounterEng(uint64_t frequency) : _rateDenominator(1), _shift(0) {
    QN_ASSERT_TEXT(frequency != 0, "_hwCounterFrequency != 0");
    while (frequency > 0x7FFFFFFFULL) {
        frequency >>= 1;
        ++_shift;
    }
    _rateNumerator = static_cast<int>(frequency);
    _cycle = 1.0 / static_cast<double>(frequency);
}

HwCounterEng::~HwCounterEng() = default;

double HwCounterEng::seconds(uint64_t t0, uint64_t t1) const {
    return static_cast<double>(static_cast<int64_t>(t1 - t0)) * _cycle;
}

double HwCounterEng::seconds() const { return static_cast<double>(timeStamp()) * _cycle; }

double HwCounterEng::resolution() const { return _cycle; }

int HwCounterEng::getRateNumerator() const { return _rateNumerator; }

int HwCounterEng::getRateDenominator() const { return _rateDenominator; }

}  // namespace Qn
