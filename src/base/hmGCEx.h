// Qn::HmGCEx: the leak detector's exceptions.
//
// ExGarbageDetected is raised when a leak check finds blocks that nobody frees
// and the detector was asked to raise (HmGC::setThrowException). It derives from
// ExBase only: code that catches standard exceptions does not take it.
#pragma once

#include <base/exBase.h>

namespace Qn {

class QN_BASE_API HmGCEx : public ExBase {
  public:
    class ExGarbageDetected;

  protected:
    HmGCEx(const char* fileName, int lineNo) : ExBase(fileName, lineNo) {}
};

class QN_BASE_API HmGCEx::ExGarbageDetected : public HmGCEx {
  public:
    // Reason "Garbage Collector has detected leaks.".
    ExGarbageDetected(const char* fileName, int lineNo);

    ExBase* clone() const override;
    const char* what() const noexcept { return getReason(); }
};

}  // namespace Qn
