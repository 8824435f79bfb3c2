#include <base/lgInterProcessLock.h>

#include <base/assertions.h>

namespace Qn {

namespace {

const char* requireName(const char* name) {
    QN_ASSERT(name);
    return name;
}

}  // namespace

ObjPtrRet<LgInterProcessLock> LgInterProcessLock::create(const char* name) {
    return ObjPtrRet<LgInterProcessLock>(new LgInterProcessLock(name));
}

LgInterProcessLock::LgInterProcessLock(const char* name)
    : _handle(performCreate(requireName(name))) {}

LgInterProcessLock::~LgInterProcessLock() noexcept(false) { performClose(_handle); }

void LgInterProcessLock::lock() {
    _threads.lock();
    try {
        performLock(_handle);
    } catch (...) {
        _threads.unlock();
        throw;
    }
}

void LgInterProcessLock::unlock() {
    try {
        performUnlock(_handle);
    } catch (...) {
        _threads.unlock();
        throw;
    }
    _threads.unlock();
}

}  // namespace Qn
