#include <base/hmGCEx.h>

namespace Qn {

HmGCEx::ExGarbageDetected::ExGarbageDetected(const char* fileName, int lineNo)
    : HmGCEx(fileName, lineNo) {
    setReason("Garbage Collector has detected leaks.");
}

ExBase* HmGCEx::ExGarbageDetected::clone() const { return new ExGarbageDetected(*this); }

}  // namespace Qn
