#include <base/inReinitGuard.h>

#include <exception>

#include <base/assertions.h>
#include <base/inInitMgr.h>

namespace Qn {

InReinitGuard::InReinitGuard() { ++InInitMgr::getInstance()._reinitCount; }

InReinitGuard::~InReinitGuard() noexcept(false) {
    InInitMgr& manager = InInitMgr::getInstance();
    --manager._reinitCount;
    if (std::uncaught_exceptions() > 0) return;
    QN_ASSERT(manager._reinitCount >= 0);
    if (manager._reinitCount == 0) manager.runPass();
}

}  // namespace Qn
