// A two-package cycle: the pass fails, nothing of it is initialised, and the
// guard reports the failure with the manager's dump.
#include <gtest/gtest.h>

#include <sstream>

#include <base/inEx.h>
#include <base/inInitGuard.h>
#include <base/inInitMgr.h>
#include <support/captureStream.h>
#include <support/testPackage.h>

namespace QnInit {
class cycB;
}
QN_TEST_PACKAGE(cycA, QnInit::cycB);
QN_TEST_PACKAGE(cycB, QnInit::cycA);

TEST(InInitMgr, CycleIsReportedAndNothingIsInitialised) {
    int argc = 1;
    const char* argvStorage[] = {"host"};
    const char* const* argv = argvStorage;
    QnTest::CaptureStream out(std::cout);
    EXPECT_THROW(Qn::InInitGuard guard(argc, argv), Qn::InEx::ExDependencyCycle);
    EXPECT_TRUE(QnTest::packageLog().empty());

    const std::string cycleReport = "'cycA' is in a cycle with:\n\t'cycB'\n";
    std::ostringstream cycles;
    Qn::InInitMgr::getInstance().reportCycles(cycles);
    EXPECT_EQ(cycles.str(), cycleReport);

    const std::string printed = out.str();
    EXPECT_EQ(printed.rfind("Initialisation failed: Init dependencies contain cycle(s)\n"
                            "No packages waiting to be initialize.\n"
                            "No packages saved.\n"
                            "Dependency cycle(s) detected...\n" +
                                cycleReport,
                            0),
              0u)
        << printed;
}
