// The leak checks HmGC asks of AddressSanitizer's leak checker, in a program of
// their own so that nothing else is allocated while they run. Builds without the
// checker find nothing.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <thread>

#include <base/hmGC.h>
#include <base/hmGCEx.h>

namespace {

// A block whose address is kept only in a disguised form, so that the checker
// sees nothing pointing to it. It is made on another thread so that no copy of
// the address stays in this thread's registers or stack.
constexpr uintptr_t disguise = static_cast<uintptr_t>(0x5A5A5A5A5A5A5A5Aull);
uintptr_t disguisedBlock = 0;

void loseBlock() {
    std::thread([] {
        disguisedBlock = reinterpret_cast<uintptr_t>(std::malloc(64)) ^ disguise;
    }).join();
}

void freeBlock() { std::free(reinterpret_cast<void*>(disguisedBlock ^ disguise)); }

}  // namespace

TEST(HmGC, LeakCheckOfTheSanitizer) {
    Qn::HmGC gc;
    std::ostringstream out;
    gc.setOutput(&out);
    gc.setThrowException(true);
    EXPECT_FALSE(gc.checkLeaks()) << "nothing is lost yet";
    EXPECT_EQ(out.str(), "");
    if (!Qn::HmGC::isLeakCheckerLoaded()) GTEST_SKIP() << "built without the leak checker";

    loseBlock();
    EXPECT_THROW(gc.checkLeaks(), Qn::HmGCEx::ExGarbageDetected);
    gc.setThrowException(false);
    EXPECT_TRUE(gc.checkLeaks());
    EXPECT_NE(out.str().find("Leak check:"), std::string::npos);
    freeBlock();
    EXPECT_FALSE(gc.checkLeaks()) << "the block is freed";
}
