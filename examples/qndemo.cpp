// The library's tour: a host program that starts the library with its command
// line, uses it, and finalises it.
#include <iostream>

#include <base/dtTime.h>
#include <base/dtTimeUtil.h>
#include <base/exInternalError.h>

namespace {

// Exact discrete time: a film frame re-expressed at the NTSC rate, two rates
// added at their shared rate, and a time through its text form and back.
void showExactTime() {
    const Qn::Rational film(24, 1), ntsc(30000, 1001);
    const Qn::DtTime second(24, film);
    std::cout << second << " at NTSC: " << second.convertRate(ntsc) << "\n";
    std::cout << "frame 1000 at NTSC, to nearest: "
              << int64_t{Qn::DtTimeIndex(1000).convert(film, ntsc, std::round_to_nearest)} << "\n";
    std::cout << Qn::DtTime(10, film) << " + " << Qn::DtTime(10, 25, 1) << " = "
              << Qn::DtTime(10, film) + Qn::DtTime(10, 25, 1) << "\n";
    const Qn::DtTime time(100, ntsc);
    const Qn::ArrayPtrRet<char> text = Qn::DtTimeUtil::getDtStringFromDtTime(time);
    const Qn::DtTime back = Qn::DtTimeUtil::getDtTimeFromDtString(text.get());
    std::cout << time << " -> \"" << text.get() << "\" -> " << back
              << (back == time && back.isRateEqual(time) ? " (exact)" : " (differs)") << "\n";
}

}  // namespace

int main() {
    try {
        throw Qn::ExInternalError(__FILE__, __LINE__, "demo");
    } catch (const Qn::ExBase& e) {
        std::cout << e.getDetailedReason() << "\n";
    }
    showExactTime();
    return 0;
}
