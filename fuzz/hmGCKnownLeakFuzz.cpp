// Feeds arbitrary known-leak lists and stacks to the leak detector's filter: the
// first line of the input is the list, every further line one frame. The filter
// must never read past the list or the frames, whatever their shape.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <base/hmGC.h>

namespace {

struct Filter : Qn::HmGC {
    using HmGC::isLeakValid;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> lines;
    for (size_t start = 0;;) {
        const size_t end = input.find('\n', start);
        lines.push_back(input.substr(start, end - start));
        if (end == std::string::npos) break;
        start = end + 1;
    }
    // Each frame and the list in a block of its own size, so that the
    // sanitizer sees any read past an end.
    auto frames = std::make_unique<Qn::ArrayPtr<char>[]>(lines.size());
    for (size_t i = 1; i < lines.size(); ++i) {
        frames[i - 1].reset(new char[lines[i].size() + 1]);
        std::memcpy(frames[i - 1].get(), lines[i].c_str(), lines[i].size() + 1);
    }
    const std::unique_ptr<char[]> list(new char[lines[0].size() + 1]);
    std::memcpy(list.get(), lines[0].c_str(), lines[0].size() + 1);
    (void)Filter().isLeakValid(frames.get(), list.get());
    return 0;
}
