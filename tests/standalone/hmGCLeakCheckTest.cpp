// The leak checks HmGC asks of AddressSanitizer's leak checker, in a program of
// their own so that nothing else is allocated while they run. Builds without the
// checker find nothing.
#include <gtest/gtest.h>

#include <sstream>

#include <base/hmGC.h>
#include <base/hmGCEx.h>
#include <support/lostBlock.h>

namespace {

QnTest::LostBlock block;

}  // namespace

TEST(HmGC, LeakCheckOfTheSanitizer) {
    Qn::HmGC gc;
    std::ostringstream out;
    gc.setOutput(&out);
    gc.setThrowException(true);
    EXPECT_FALSE(gc.checkLeaks()) << "nothing is lost yet";
    EXPECT_EQ(out.str(), "");
    if (!Qn::HmGC::isLeakCheckerLoaded()) GTEST_SKIP() << "built without the leak checker";

    block.lose();
    EXPECT_THROW(gc.checkLeaks(), Qn::HmGCEx::ExGarbageDetected);
    gc.setThrowException(false);
    EXPECT_TRUE(gc.checkLeaks());
    EXPECT_NE(out.str().find("Leak check:"), std::string::npos);
    block.free();
    EXPECT_FALSE(gc.checkLeaks()) << "the block is freed";
}
