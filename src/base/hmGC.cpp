#include <base/hmGC.h>

#include <cstring>
#include <ostream>

#include <base/hmGCEx.h>

// AddressSanitizer's leak checker is reached through its interface function,
// declared weak so that the library still loads when the program runs without
// the sanitizer's runtime. Only builds with AddressSanitizer refer to it.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QN_HM_ADDRESS_SANITIZER 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define QN_HM_ADDRESS_SANITIZER 1
#endif

namespace {

using LeakCheck = int (*)();

}  // namespace

#if defined(QN_HM_ADDRESS_SANITIZER)
extern "C" int __lsan_do_recoverable_leak_check() __attribute__((weak));
namespace {
LeakCheck leakChecker() { return &__lsan_do_recoverable_leak_check; }
}  // namespace
#else
namespace {
LeakCheck leakChecker() { return nullptr; }
}  // namespace
#endif

namespace Qn {

namespace {

const char knownLeakMark[] = "KNOWNLEAK";
const char entryEnd[] = "ENDL";

}  // namespace

bool HmGC::isLeakCheckerLoaded() { return leakChecker() != nullptr; }

bool HmGC::checkLeaks() const {
    const LeakCheck check = leakChecker();
    if (!check || check() == 0) return false;
    if (_output)
        *_output << "Leak check: blocks that nothing points to remain (the leak checker's report "
                    "is on the standard error stream)."
                 << std::endl;
    if (_throwException) throw HmGCEx::ExGarbageDetected(__FILE__, __LINE__);
    return true;
}

bool HmGC::isLeakValid(ArrayPtr<char>* frames, const char* knownLeaks) const {
    if (!knownLeaks) return true;
    const char* at = std::strstr(knownLeaks, knownLeakMark);
    size_t frame = 0;
    while (at) {
        const char* blank = std::strchr(at, ' ');
        if (!blank) return true;  // the entry ends before ENDL
        const char* token = blank + 1;
        if (std::strncmp(token, entryEnd, sizeof entryEnd - 1) == 0) return false;
        const char* text = frames ? frames[frame].get() : nullptr;
        if (text && std::strncmp(text, token, std::strlen(text)) == 0) {
            ++frame;
            at = token;
        } else {
            frame = 0;
            at = std::strstr(token, knownLeakMark);
        }
    }
    return true;
}

}  // namespace Qn
