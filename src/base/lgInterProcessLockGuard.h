// Qn::LgInterProcessLockGuard: holds an inter-process lock for its lifetime; a
// null lock is accepted and does nothing, so callers need not test whether one
// is configured.
#pragma once

#include <base/lgInterProcessLock.h>

namespace Qn {

class QN_BASE_API LgInterProcessLockGuard {
  public:
    explicit LgInterProcessLockGuard(LgInterProcessLock* lock) : _lock(lock) {
        if (_lock) _lock->lock();
    }
    // Raises what unlock raises.
    ~LgInterProcessLockGuard() noexcept(false) {
        if (_lock) _lock->unlock();
    }
    LgInterProcessLockGuard(const LgInterProcessLockGuard&) = delete;
    LgInterProcessLockGuard& operator=(const LgInterProcessLockGuard&) = delete;

  private:
    LgInterProcessLock* _lock;
};

}  // namespace Qn
