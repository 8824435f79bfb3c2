// Qn::LgInterProcessLock: a named lock shared by every process that opens the
// same name; it excludes other threads as well as other processes. The logger
// holds it around each line and banner so that processes sharing a log file do
// not interleave their lines.
//
// A holder that dies does not leave the lock locked: the next locker takes it
// over. On Windows the lock is a named mutex (CreateMutexA; an abandoned mutex
// counts as acquired), so the name follows the system's rules: no backslash
// outside a "Global\" or "Local\" prefix, at most MAX_PATH characters. On
// POSIX it is an advisory lock (flock) on a file named after the lock in the
// temporary directory, where characters other than letters, digits, '.', '_'
// and '-' are written as %XX (a long name is shortened with a hash of the
// whole); the file stays behind. Any name is accepted there.
//
//   ObjPtrRet<LgInterProcessLock> lock = LgInterProcessLock::create("myapp.log");
//   { LgInterProcessLockGuard hold(lock.get()); ... }
//
// Thread-safety: lock and unlock may be called from any thread; the thread that
// locks must unlock. Not recursive.
#pragma once

#include <cstdint>
#include <mutex>

#include <base/objPtr.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API LgInterProcessLock {
  public:
    // Creates or opens the lock of that name. Raises ExSysErrorNative when the
    // system refuses. REQUIRES: name is not null.
    static ObjPtrRet<LgInterProcessLock> create(const char* name);

    // Closes the handle. Raises ExSysErrorNative when the system refuses.
    virtual ~LgInterProcessLock() noexcept(false);
    LgInterProcessLock(const LgInterProcessLock&) = delete;
    LgInterProcessLock& operator=(const LgInterProcessLock&) = delete;

    // Waits without time limit until the lock is held. Raises ExSysErrorNative.
    virtual void lock();
    // Raises ExSysErrorNative when the system refuses.
    virtual void unlock();

    // The system's handle of the named lock.
    using Native = intptr_t;

  protected:
    // Creates or opens the lock of that name (for classes that add to lock and
    // unlock). Raises as create.
    explicit LgInterProcessLock(const char* name);

  private:
    static Native performCreate(const char* name);
    static void performLock(Native handle);
    static void performUnlock(Native handle);
    static void performClose(Native handle);

    Native _handle;
    // The system lock excludes processes; this excludes the threads of this
    // process that share the object, the same way on every platform.
    std::mutex _threads;
};

}  // namespace Qn
