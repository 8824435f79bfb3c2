// Feeds arbitrary texts to the DtString reader. Only the exceptions the reader
// documents may escape it; anything else (another exception, a crash, a
// sanitizer report) is a finding. A text that reads must write back to a text
// that reads as the same time.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <base/dtEx.h>
#include <base/dtTimeUtil.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    Qn::DtTime time;
    try {
        time = Qn::DtTimeUtil::getDtTimeFromDtString(text.c_str());
    } catch (const Qn::DtEx::DtStringError&) {
        return 0;
    } catch (const Qn::DtEx::BadRate&) {
        return 0;
    } catch (const Qn::RationalEx::ExDenominatorZero&) {
        return 0;
    }
    // A rate whose reduced denominator is 2^31 has no 32-bit form; all others
    // keep a positive denominator and must survive the round trip.
    if (time.getRate().getDenominator() < 0) return 0;
    const Qn::ArrayPtrRet<char> written = Qn::DtTimeUtil::getDtStringFromDtTime(time);
    const Qn::DtTime back = Qn::DtTimeUtil::getDtTimeFromDtString(written.get());
    if (int64_t{back.getCount()} != int64_t{time.getCount()} || !back.isRateEqual(time))
        std::abort();
    return 0;
}
