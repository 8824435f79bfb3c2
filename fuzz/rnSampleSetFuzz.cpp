// Feeds arbitrary text to the scene-text reader of sample sets: it must either
// return a set or raise its syntax exception.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <base/rnEx.h>
#include <base/rnSampleSet.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const auto set = Qn::RnSampleSet<double>::parseSceneText(text, "fuzz");
        (void)Qn::RnSampleSet<double>::parseSceneText(set.toSceneText(), "again");
    } catch (const Qn::RnEx::ExSampleFileSyntax&) {
    }
    try {
        (void)Qn::RnSampleSet<float>::parseSceneText(text, "fuzz");
    } catch (const Qn::RnEx::ExSampleFileSyntax&) {
    }
    return 0;
}
