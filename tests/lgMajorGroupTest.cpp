#include <gtest/gtest.h>

#include <sstream>

#include <base/exInternalError.h>
#include <base/lgEx.h>
#include <base/lgMinorGroup.h>
#include <support/captureStream.h>

namespace {

using Qn::LgMajorGroup;
using Qn::LgTypes;

class LgMajorGroupTest : public ::testing::Test {
  protected:
    void SetUp() override { LgMajorGroup::initialize(nullptr); }
    void TearDown() override {
        LgMajorGroup::finalize();
        LgMajorGroup::setDefaultThreshold(LgTypes::Warning);
    }
};

TEST(LgTypes, NamesConvertBothWaysExactly) {
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const auto level = static_cast<LgTypes::Level>(l);
        EXPECT_EQ(LgTypes::getLevelFromName(LgTypes::getLevelName(level)), level);
    }
    for (const char* bad : {"warning", "Warning ", "", "Error\n"}) {
        SCOPED_TRACE(bad);
        try {
            LgTypes::getLevelFromName(bad);
            ADD_FAILURE() << "accepted";
        } catch (const Qn::LgEx::InvalidLevelString& e) {
            EXPECT_EQ(std::string(e.what()), std::string("Invalid level string specified: ") + bad);
        }
    }
    EXPECT_THROW(LgTypes::getLevelName(static_cast<LgTypes::Level>(7)), Qn::ExInternalError);
    EXPECT_THROW(LgTypes::getLevelFromName(nullptr), Qn::ExInternalError);
}

TEST_F(LgMajorGroupTest, ThresholdsKeepProfilingApartAndRaiseInternalError) {
    LgMajorGroup& group = LgMajorGroup::getInstanceForName("G");
    EXPECT_EQ(group.getLogLevels(), 0xF0u);
    group.setLogThreshold(LgTypes::InternalError, false);
    EXPECT_EQ(group.getLogLevels(), 0xC0u);
    group.setLogThreshold(LgTypes::Profiling, false);
    group.setLogThreshold(LgTypes::Error, false);
    EXPECT_EQ(group.getLogLevels(), 0xE2u);
    group.setLogThreshold(LgTypes::Error, true);
    EXPECT_EQ(group.getLogLevels(), 0xE0u);

    LgMajorGroup::setDefaultThreshold(LgTypes::InternalError);
    EXPECT_EQ(LgMajorGroup::getDefaultThreshold(), LgTypes::FatalError);
    LgMajorGroup::setDefaultThreshold(LgTypes::Informational);
    EXPECT_EQ(LgMajorGroup::getInstanceForName("New").getLogLevels(), 0xF8u);
    EXPECT_EQ(group.getLogLevels(), 0xE0u);
    EXPECT_THROW(group.setLogThreshold(static_cast<LgTypes::Level>(7), false), Qn::ExInternalError);
}

TEST_F(LgMajorGroupTest, SameNameSameGroupAndMinorGroupsSeeChanges) {
    std::string name = "Io";
    LgMajorGroup& io = LgMajorGroup::getInstanceForName(name.c_str());
    name = "changed";  // the registry keeps its own copy
    EXPECT_EQ(&LgMajorGroup::getInstanceForName("Io"), &io);
    const Qn::LgMinorGroup read(io, "Io.read");
    EXPECT_STREQ(read.getName(), "Io.read");
    EXPECT_FALSE(read.isLevelEnabled(LgTypes::Informational));
    io.setLogThreshold(LgTypes::Tracing, false);
    EXPECT_TRUE(read.isLevelEnabled(LgTypes::Tracing));
    EXPECT_FALSE(read.isLevelEnabled(LgTypes::Profiling));
    EXPECT_THROW(Qn::LgMinorGroup(io, nullptr), Qn::ExInternalError);
}

// Every group that lets a severity through prints as "Tracing", whatever its
// threshold.
TEST_F(LgMajorGroupTest, ParseSkipsBadLevelsAndTheReportShowsTracingAndProfiling) {
    QnTest::CaptureStream out(std::cout);
    LgMajorGroup::parse("A=Warning,B=Bogus,C=Fatal Error,D=Profiling");
    EXPECT_EQ(out.str(), "Invalid level string specified: Bogus\n");
    std::ostringstream report;
    LgMajorGroup::printAll(report);
    EXPECT_EQ(report.str(),
              "Major Groups:\n"
              "                       A Tracing\n"
              "                       C Tracing\n"
              "                       D Tracing, Profiling\n");
    EXPECT_EQ(LgMajorGroup::getInstanceForName("C").getLogLevels(), 0xC0u);
    EXPECT_EQ(LgMajorGroup::getInstanceForName("D").getLogLevels(), 0xF2u);
    std::ostringstream masks;
    LgMajorGroup::printLevels(masks, 0x02);
    LgMajorGroup::printLevels(masks << '|', 0);
    EXPECT_EQ(masks.str(), ", Profiling|");
    // An assignment without "=" has no level.
    EXPECT_THROW(LgMajorGroup::parse("Main"), Qn::ExInternalError);
}

TEST(LgMajorGroupLifecycle, RegistryLifecycleIsChecked) {
    EXPECT_THROW(LgMajorGroup::getInstanceForName("x"), Qn::ExInternalError);
    EXPECT_THROW(LgMajorGroup::finalize(), Qn::ExInternalError);
    LgMajorGroup::initialize("X=Error");
    EXPECT_THROW(LgMajorGroup::initialize(nullptr), Qn::ExInternalError);
    EXPECT_EQ(LgMajorGroup::getInstanceForName("X").getLogLevels(), 0xE0u);
    LgMajorGroup::finalize();
    EXPECT_FALSE(LgMajorGroup::isInitialized());
}

}  // namespace
