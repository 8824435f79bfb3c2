// The manager's life: finalise before initialise, registration after
// initialisation with and without a reinitialise guard, a second initialise,
// and finalise twice.
#include <gtest/gtest.h>

#include <memory>

#include <base/inContextAliasMgrBase.h>
#include <base/inEx.h>
#include <base/inInitMgr.h>
#include <base/inReinitGuard.h>
#include <support/testPackage.h>

QN_TEST_PACKAGE(first);
namespace QnInit {
class late;
class later;
}  // namespace QnInit

namespace {

void hook() {}

std::unique_ptr<Qn::InInit<QnInit::late>> makeLate() {
    return std::make_unique<Qn::InInit<QnInit::late>>(
        "late", Qn::InPackageDeps<QnInit::first>{},
        [] { QnTest::packageLog().push_back("init late"); }, &hook);
}

}  // namespace

TEST(InInitMgr, LifecycleAndReinitialisation) {
    Qn::InInitMgr& manager = Qn::InInitMgr::getInstance();
    EXPECT_THROW(manager.finalize(), Qn::InEx::ExFinaliseBeforeInit);

    int argc = 1;
    const char* argvStorage[] = {"host"};
    const char* const* argv = argvStorage;
    manager.initialize(argc, argv);
    EXPECT_EQ(QnTest::packageLog(), std::vector<std::string>{"init first"});

    EXPECT_THROW(makeLate(), Qn::InEx::ExReinitWithoutGuard);

    std::unique_ptr<Qn::InInit<QnInit::late>> late;
    {
        Qn::InReinitGuard outer;
        {
            Qn::InReinitGuard inner;
            late = makeLate();
        }
        EXPECT_FALSE(Qn::InInit<QnInit::late>::isInitialized()) << "waits for the outer guard";
    }
    EXPECT_TRUE(Qn::InInit<QnInit::late>::isInitialized());
    EXPECT_TRUE(late->getDependencies().size() == 0) << "first was initialised already";

    // A second initialise appends its arguments and initialises nothing new.
    const char* moreStorage[] = {"-x"};
    const char* const* more = moreStorage;
    argc = 1;
    manager.initialize(argc, more);
    EXPECT_EQ(Qn::InContextAliasMgrBase::args(),
              (Qn::InContextAliasMgrBase::ArgStore{"host", "-x"}));
    EXPECT_EQ(QnTest::packageLog(), (std::vector<std::string>{"init first", "init late"}));

    manager.finalize();
    EXPECT_FALSE(Qn::InInit<QnInit::first>::isInitialized());
    EXPECT_THROW(manager.finalize(), Qn::InEx::ExDoubleFinalise);
}
