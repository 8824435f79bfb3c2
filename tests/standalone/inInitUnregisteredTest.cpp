// A dependency on a package type that never registered.
#include <gtest/gtest.h>

#include <base/inEx.h>
#include <base/inInitMgr.h>
#include <support/testPackage.h>

namespace QnInit {
class ghost;
}
QN_TEST_PACKAGE(haunted, QnInit::ghost);

TEST(InInitMgr, UnregisteredDependencyIsNamed) {
    int argc = 0;
    const char* const* argv = nullptr;
    try {
        Qn::InInitMgr::getInstance().initialize(argc, argv);
        FAIL() << "no exception";
    } catch (const Qn::InEx::ExPackageNotRegistered& e) {
        EXPECT_STREQ(e.getReason(), "Init Package not registered: 'Qn::InInit<QnInit::ghost>'.");
    }
    EXPECT_TRUE(QnTest::packageLog().empty());
}
