// Feeds arbitrary texts to the timecode reader. The first byte picks the rate
// and the options; the rest is the text. Only DtEx exceptions may escape the
// reader; anything else (another exception, a crash, a sanitizer report) is a
// finding. A text that reads must write a label that reads as the same frame.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <base/dtEx.h>
#include <base/dtTimecode.h>

namespace {

const Qn::Rational Rates[] = {Qn::Rational(24, 1),        Qn::Rational(25, 1),
                              Qn::Rational(30000, 1001),  Qn::Rational(60000, 1001),
                              Qn::Rational(120000, 1001), Qn::Rational(24000, 1001),
                              Qn::Rational(999, 1),       Qn::Rational(1, 1)};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const unsigned pick = data[0];
    const auto drop = static_cast<Qn::DtTimecode::DropFrame>(pick / 8 % 3);
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    try {
        const Qn::DtTimecode timecode(Rates[pick % 8], drop, pick / 32 % 4);
        const int64_t frame = timecode.frameFromText(text);
        char written[Qn::DtTimecode::TextSize];
        timecode.frameToText(frame, written);
        if (timecode.frameFromText(written) != frame) std::abort();
    } catch (const Qn::DtEx&) {
        return 0;
    }
    return 0;
}
