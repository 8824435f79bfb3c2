#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include <base/exInternalError.h>
#include <base/lgInterProcessLockGuard.h>
#include <support/platform.h>

namespace {

using Qn::LgInterProcessLock;

std::string uniqueName(const std::string& base) {
    return base + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
}

// Thread B locks second while thread A holds first; B must get the lock only
// after A has let it go.
void expectExclusion(LgInterProcessLock& first, LgInterProcessLock& second) {
    std::atomic<bool> held{false}, released{false};
    bool sawRelease = false;
    std::thread a([&] {
        first.lock();
        held = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        released = true;
        first.unlock();
    });
    std::thread b([&] {
        while (!held) std::this_thread::yield();
        const Qn::LgInterProcessLockGuard hold(&second);
        sawRelease = released;
    });
    a.join();
    b.join();
    EXPECT_TRUE(sawRelease);
}

TEST(LgInterProcessLock, ExcludesThreadsThroughOneOrTwoObjectsOfAName) {
    const std::string name = uniqueName("qn-lock-test:");
    auto one = LgInterProcessLock::create(name.c_str());
    auto two = LgInterProcessLock::create(name.c_str());
    {
        SCOPED_TRACE("one object");
        expectExclusion(*one, *one);
    }
    {
        SCOPED_TRACE("two objects of the same name");
        expectExclusion(*one, *two);
    }
}

TEST(LgInterProcessLock, AcceptsAnyNameAndANullGuard) {
    std::vector<std::string> names = {uniqueName("with spaces, slashes/ and % and * ? ")};
    // Windows names its mutexes with at most MAX_PATH characters.
    if (!QnTest::onWindows) names.push_back(uniqueName(std::string(600, 'n')));
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        auto lock = LgInterProcessLock::create(name.c_str());
        lock->lock();
        lock->unlock();
        const Qn::LgInterProcessLockGuard hold(lock.get());
    }
    const Qn::LgInterProcessLockGuard nothing(nullptr);
    EXPECT_THROW(LgInterProcessLock::create(nullptr), Qn::ExInternalError);
}

}  // namespace
