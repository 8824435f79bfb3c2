#include <base/dtTimeMark.h>

#include <ostream>

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

std::ostream& DtTimeMark::dump(std::ostream& stream) const {
    stream << "(";
    _streamTime.dump(stream) << " ";
    return _refTime.dump(stream) << ")";
}

}  // namespace Qn
