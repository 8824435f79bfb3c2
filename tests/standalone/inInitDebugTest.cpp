// The start-up trace of QN_DEBUG_INITIALIZE and the environment snapshot.
#include <gtest/gtest.h>

#include <cstdlib>

#include <base/inInitMgr.h>
#include <support/captureStream.h>
#include <support/testPackage.h>

QN_TEST_PACKAGE(traced);
QN_TEST_PACKAGE(tracedChild, QnInit::traced);

TEST(InInitMgr, DebugTraceAndEnvironmentSnapshot) {
    EXPECT_STREQ(Qn::InInitMgr::getEnv("QN_DEBUG_INITIALIZE"), "1");
    EXPECT_STREQ(Qn::InInitMgr::getEnv("QN_TEST_SNAPSHOT"), "a=b");
    EXPECT_EQ(Qn::InInitMgr::getEnv(nullptr), nullptr);
#if defined(_WIN32)
    _putenv("QN_TEST_LATE=1");
#else
    setenv("QN_TEST_LATE", "1", 1);
#endif
    EXPECT_EQ(Qn::InInitMgr::getEnv("QN_TEST_LATE"), nullptr) << "taken after the snapshot";

    QnTest::CaptureStream err(std::cerr);
    int argc = 0;
    const char* const* argv = nullptr;
    Qn::InInitMgr::getInstance().initialize(argc, argv);
    const std::string trace = err.str();
    EXPECT_EQ(trace.find("-->_nbPckgs:15\n"), 0u) << trace;
    EXPECT_NE(trace.find("_packagesToInit[0]: base\n"), std::string::npos);
    EXPECT_NE(trace.find("\nInInit<traced>::performInitialize()\n"), std::string::npos);
    EXPECT_NE(trace.find("\n InInit<tracedChild>::performInitialize()\n"), std::string::npos);
    EXPECT_NE(trace.find("\n            InInit<base>::performInitialize()\n"), std::string::npos);

    Qn::InInitMgr::getInstance().finalize();
    EXPECT_NE(err.str().find("\n InInit<tracedChild>::performFinalize()\n"), std::string::npos);
}
