// The heap manager singleton around the "heapMgr" package's start-up and
// shutdown, configured by the variables of hmHeapMgrTest.env.
#include <gtest/gtest.h>

#include <string>

#include <base/hmHeapMgr.h>
#include <base/inSingletonEx.h>

TEST(HmHeapMgr, SingletonFollowsThePackageAndReadsTheEnvironment) {
    try {
        Qn::HmHeapMgr::getInstance();
        ADD_FAILURE() << "reached before the package made it";
    } catch (const Qn::InSingletonEx::ExNotInitialized& e) {
        EXPECT_STREQ(e.getReason(), "Qn::InSingleton<Qn::HmHeapMgr> is not initialized.");
    }

    Qn::HmHeapMgr::initialize();
    const Qn::HmHeapMgr& heap = Qn::HmHeapMgr::getInstance();
    EXPECT_EQ(heap.getSafetyLevel(), Qn::HmHeapMgr::SafetyDebug);
    EXPECT_TRUE(heap.isDumpLeaks());
    EXPECT_FALSE(heap.isCheckAllMemory());
    EXPECT_FALSE(heap.isDoDeferFreeing());
    EXPECT_EQ(heap.getDeferQueueLen(), 0u);
    EXPECT_EQ(heap.getCheckFrequency(), 4294967295u);
    EXPECT_EQ(heap.getDeferSizeThreshold(), 4096u);
    EXPECT_THROW(Qn::HmHeapMgr::initialize(), Qn::InSingletonEx::ExAlreadyInitialized);
    EXPECT_EQ(&Qn::HmHeapMgr::getInstance(), &heap) << "the first instance stays";

    Qn::HmHeapMgr::finalize();
    EXPECT_THROW(Qn::HmHeapMgr::getInstance(), Qn::InSingletonEx::ExNotInitialized);
    EXPECT_THROW(Qn::HmHeapMgr::initialize(), Qn::InSingletonEx::ExAlreadyDestroyed);
    EXPECT_THROW(Qn::HmHeapMgr::finalize(), Qn::InSingletonEx::ExAlreadyDestroyed);
}
