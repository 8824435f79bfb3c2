// Verdicts into the file named by QN_RUN_TEST_MSGS and the test directory from
// QN_TEST_DIR (see testInformTest.env): the start-up snapshot holds both.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <base/testDir.h>
#include <base/testInform.h>
#include <base/testMgr.h>
#include <support/traceCollector.h>

namespace {

std::string messages() {
    std::ifstream in("testInformMessages.txt", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

}  // namespace

TEST(TestInform, TheFileKeepsTheLatestMessageOnly) {
    QnTest::TraceCollector trace;
    Qn::TestInform::testNotPerformed("first");
    Qn::TestInform::testNotPerformed("second");
    EXPECT_EQ(messages(), "Test not performed: second\n");
    Qn::TestInform::exceptionEncountered("bad");
    EXPECT_EQ(messages(), "Exception encountered: bad\n");
    Qn::TestInform::abnormalTermination(nullptr);
    EXPECT_EQ(messages(), "Abnormal termination: \n");

    const char* argv[] = {"prog", "Nobody", nullptr};
    EXPECT_EQ(Qn::TestMgr::runTest(2, argv), Qn::TestMgr::NotRun);
    EXPECT_EQ(messages(), "Test not performed: Unknown test group name.\n");
    EXPECT_EQ(trace.lines.front(), "\nRegistered test groups:\n")
        << "only the verdicts go to the file";
    std::filesystem::remove("testInformMessages.txt");
}

TEST(TestDir, ComesFromTheEnvironmentAndIsCreatedWithParents) {
    const Qn::OsFilePath& dir = Qn::TestDir::getDefaultPath();
    EXPECT_STREQ(dir.getText(), "testInformDir/a/b");
    EXPECT_EQ(&Qn::TestDir::getDefaultPath(), &dir) << "computed once";
    EXPECT_STREQ(Qn::TestDir::create(dir).getText(), dir.getText());
    EXPECT_TRUE(std::filesystem::is_directory("testInformDir/a/b"));
    EXPECT_NO_THROW(Qn::TestDir::create(dir)) << "an existing directory is accepted";
    std::filesystem::remove_all("testInformDir");
}
