#include <base/assertions.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include <base/exInternalError.h>

namespace {

std::string reasonOf(void (*raise)()) {
    try {
        raise();
    } catch (const Qn::ExInternalError& e) {
        return e.getReason();
    }
    return "<nothing raised>";
}

}  // namespace

TEST(Assertions, ThreeOperationsAndTheirTexts) {
    EXPECT_EQ(reasonOf([] { Qn::Assertions::throwAssertionFailed("a.cpp", 1, "x > 0"); }),
              "Assertion 'x > 0' failed.");
    EXPECT_EQ(reasonOf([] { Qn::Assertions::throwProgramAborted("a.cpp", 2); }),
              "Program aborted.");
    const std::string sys =
        reasonOf([] { Qn::Assertions::throwSysAssertionFailed("a.cpp", 3, "p != 0", 12); });
    EXPECT_EQ(sys,
              std::string("Assertion 'p != 0' failed, errno = 12 (") + std::strerror(12) + ").");
}

TEST(Assertions, MacrosPassTextFileAndLine) {
    int value = 3;
    EXPECT_NO_THROW(QN_ASSERT(value == 3));
    try {
        QN_ASSERT(value == 4);
        FAIL() << "no exception";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.getReason(), "Assertion 'value == 4' failed.");
        EXPECT_NE(std::string(e.getFileName()).find("assertionsTest.cpp"), std::string::npos);
    }
    try {
        QN_ASSERT_TEXT(value + 1 != 4, "_end+1U != _beg");
        FAIL() << "no exception";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.getReason(), "Assertion '_end+1U != _beg' failed.");
    }
}
