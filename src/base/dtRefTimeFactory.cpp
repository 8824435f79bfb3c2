#include <base/dtRefTimeFactory.h>

#include <cstring>

#include <base/dtEx.h>
#include <base/dtHwCounterClockSource.h>
#include <base/dtRefClockEx.h>

namespace Qn {

DtRefTimeFactory& DtRefTimeFactory::getInstance() {
    static DtRefTimeFactory factory;
    return factory;
}

DtRefTimeFactory::DtRefTimeFactory() : _source(new DtHwCounterClockSource()) {}

DtRefTimeFactory::~DtRefTimeFactory() = default;

DtRefTime DtRefTimeFactory::create() const {
    return DtRefTime(_source->getValue(), _source->getRate());
}

DtRefTime DtRefTimeFactory::create(DtTimeIndex count, const char* clockName) const {
    if (clockName == nullptr || std::strcmp(clockName, _source->getName()) != 0) {
        throw DtRefClockEx::SourceMismatch("dtRefTime", 136);
    }
    return DtRefTime(count, _source->getRate());
}

DtRefTime DtRefTimeFactory::create(const DtRefTime& base, DtTimeIndex offset,
                                   Rational offsetRate) const {
    const Rational rate = _source->getRate();
    return DtRefTime(base.getCount() + offset.convert(offsetRate, rate, std::round_toward_zero),
                     rate);
}

DtRefTime DtRefTimeFactory::createExact(const DtRefTime& base, DtTimeIndex offset,
                                        Rational offsetRate, DtRounding rounding) const {
    const Rational rate = _source->getRate();
    if (base.getRate() != rate) QN_THROW(DtEx::BadRefRate);
    return DtRefTime(DtExact::add(base.getCount(), offset.convertExact(offsetRate, rate, rounding)),
                     rate);
}

}  // namespace Qn
