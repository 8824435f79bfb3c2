#include <base/dtTimeMark.h>

#include <ostream>

#include <base/dtEx.h>
#include <base/dtRefTimeFactory.h>

namespace Qn {

DtTimeMark DtTimeMark::evalTime(const DtRefTime& refTime) const {
    const DtTimeIndex elapsed = refTime.getCount() - _refTime.getCount();
    const Rational streamRate = _streamTime.getRate();
    const DtTimeIndex streamElapsed =
        elapsed.convert(_refTime.getRate(), streamRate, std::round_toward_zero);
    return DtTimeMark(DtTime(_streamTime.getCount() + streamElapsed, streamRate), refTime);
}

DtTimeMark DtTimeMark::evalTime(const DtTime& streamTime) const {
    const DtTimeIndex markCount = _streamTime.convertRate(streamTime.getRate()).getCount();
    return DtTimeMark(streamTime,
                      DtRefTimeFactory::getInstance().create(
                          _refTime, streamTime.getCount() - markCount, streamTime.getRate()));
}

DtTimeMark DtTimeMark::evalTimeExact(const DtRefTime& refTime) const {
    const Rational refRate = _refTime.getRate();
    if (refTime.getRate() != refRate || refRate.getNumerator() == 0) QN_THROW(DtEx::BadRefRate);
    const int64_t elapsed = DtExact::subtract(refTime.getCount(), _refTime.getCount());
    const Rational streamRate = _streamTime.getRate();
    const int64_t frames =
        DtTimeIndex(elapsed).convertExact(refRate, streamRate, DtRounding::Floor);
    return DtTimeMark(DtTime(DtExact::add(_streamTime.getCount(), frames), streamRate), refTime);
}

DtTimeMark DtTimeMark::evalTimeExact(const DtTime& streamTime) const {
    const Rational refRate = _refTime.getRate();
    if (refRate.getNumerator() == 0) QN_THROW(DtEx::BadRefRate);
    // streamTime - mark = p / q seconds (|p| < 2^126, |q| < 2^62), which is
    // p x refRate.numerator / d reference ticks with d = q x refRate.denominator.
    const Rational s = streamTime.getRate(), m = _streamTime.getRate();
    DtInt128 p =
        DtInt128{streamTime.getCount()} * (int64_t{s.getDenominator()} * m.getNumerator()) -
        DtInt128{_streamTime.getCount()} * (int64_t{m.getDenominator()} * s.getNumerator());
    DtInt128 d = DtInt128{int64_t{s.getNumerator()} * m.getNumerator()} * refRate.getDenominator();
    if (d < 0) {
        p = -p;
        d = -d;
    }
    const int64_t ticks = DtExact::mulDivide(p, refRate.getNumerator(), d, DtRounding::Ceiling);
    return DtTimeMark(streamTime, DtRefTime(DtExact::add(_refTime.getCount(), ticks), refRate));
}

std::ostream& DtTimeMark::dump(std::ostream& stream) const {
    stream << "(";
    _streamTime.dump(stream) << " ";
    return _refTime.dump(stream) << ")";
}

}  // namespace Qn
