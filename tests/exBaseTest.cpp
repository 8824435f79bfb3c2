#include <base/exBase.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

#include <base/exBadException.h>
#include <base/exFamily.h>
#include <base/exInternalError.h>

namespace QnTestEx {

// A family declared the way modules declare theirs.
class SampleEx : public Qn::ExBase {
  public:
    class ExFixed;
    class ExNamed;
    class ExPair;

  protected:
    SampleEx(const char* file, int line) : ExBase(file, line) {}
};
QN_EX_FIXED(, SampleEx, ExFixed, std::runtime_error, "Fixed reason.");
QN_EX_FORMAT(, SampleEx, ExNamed, std::logic_error, "Named: '%.*s'.");
QN_EX_FORMAT2(, SampleEx, ExPair, std::invalid_argument, "Pair: '%.*s' (key: %.*s).");

// Exposes the protected appending for the buffer rules.
class Appender : public Qn::ExInternalError {
  public:
    Appender() : ExInternalError("file.cpp", 7, nullptr) {}
    using ExBase::setReason;
};

}  // namespace QnTestEx

using QnTestEx::Appender;
using QnTestEx::SampleEx;

TEST(ExBase, FileNameIsCutAt127Characters) {
    std::string longName(200, 'f');
    Qn::ExInternalError e(longName.c_str(), 3, "r");
    EXPECT_EQ(std::string(e.getFileName()), longName.substr(0, 127));
    EXPECT_EQ(e.getLineNo(), 3);

    Qn::ExInternalError noName(nullptr, 4, nullptr);
    EXPECT_STREQ(noName.getFileName(), "");
    EXPECT_STREQ(noName.getReason(), "");
}

TEST(ExBase, SetReasonAppendsAndStopsAt1023Characters) {
    Appender e;
    e.setReason("a");
    e.setReason(nullptr);
    e.setReason("b");
    EXPECT_STREQ(e.getReason(), "ab");

    std::string fill(1100, 'x');
    e.setReason(fill.c_str());
    EXPECT_EQ(std::strlen(e.getReason()), 1023u);
    e.setReason("more");
    EXPECT_EQ(std::strlen(e.getReason()), 1023u);
    EXPECT_EQ(e.getReason()[1022], 'x');
}

TEST(ExBase, DetailedReasonNamesTheClassAndIsFixedAtFirstCall) {
    Appender e;
    e.setReason("first");
    const std::string detailed = e.getDetailedReason();
    EXPECT_EQ(detailed, "[Exception Type = QnTestEx::Appender, File = file.cpp, Line=7]\nfirst");
    e.setReason(" second");
    EXPECT_EQ(std::string(e.getDetailedReason()), detailed);
}

TEST(ExBase, DetailedReasonIsCutToItsBuffer) {
    Appender e;
    e.setReason(std::string(1023, 'r').c_str());
    EXPECT_EQ(std::strlen(e.getDetailedReason()), 1023u);
}

TEST(ExFamily, FixedAndFormattedMessages) {
    SampleEx::ExFixed fixed("f.cpp", 1);
    EXPECT_STREQ(fixed.what(), "Fixed reason.");
    EXPECT_STREQ(fixed.getReason(), "Fixed reason.");

    SampleEx::ExNamed named("f.cpp", 2, "abc");
    EXPECT_STREQ(named.what(), "Named: 'abc'.");

    SampleEx::ExPair pair("f.cpp", 3, "name", "key");
    EXPECT_STREQ(pair.what(), "Pair: 'name' (key: key).");

    std::string longArg(300, 'a');
    SampleEx::ExNamed cut("f.cpp", 4, longArg.c_str());
    EXPECT_EQ(std::string(cut.what()), "Named: '" + std::string(256, 'a') + "'.");
}

TEST(ExFamily, CaughtAsFamilyAsStandardCategoryAndAsBase) {
    EXPECT_THROW(throw SampleEx::ExFixed("f", 1), SampleEx);
    EXPECT_THROW(throw SampleEx::ExFixed("f", 1), std::runtime_error);
    EXPECT_THROW(throw SampleEx::ExNamed("f", 1, "x"), std::logic_error);
    EXPECT_THROW(throw SampleEx::ExPair("f", 1, "x", "y"), std::invalid_argument);
    EXPECT_THROW(throw SampleEx::ExPair("f", 1, "x", "y"), Qn::ExBase);
    try {
        QN_THROW(SampleEx::ExNamed, "thrown");
    } catch (const Qn::ExBase& e) {
        EXPECT_NE(std::string(e.getFileName()).find("exBaseTest.cpp"), std::string::npos);
        EXPECT_GT(e.getLineNo(), 0);
    }
}

TEST(ExFamily, CloneCopiesTheMostDerivedClass) {
    SampleEx::ExNamed original("g.cpp", 9, "n");
    const Qn::ExBase& asBase = original;
    std::unique_ptr<Qn::ExBase> copy(asBase.clone());
    ASSERT_NE(dynamic_cast<SampleEx::ExNamed*>(copy.get()), nullptr);
    EXPECT_STREQ(copy->getReason(), "Named: 'n'.");
    EXPECT_STREQ(copy->getFileName(), "g.cpp");
    EXPECT_EQ(copy->getLineNo(), 9);
    EXPECT_THROW(throw *dynamic_cast<SampleEx::ExNamed*>(copy.get()), SampleEx::ExNamed);
}

TEST(ExBadException, StandsForAnUnknownException) {
    Qn::ExBadException e("h.cpp", 5);
    EXPECT_STREQ(e.getReason(), "Invalid exception thrown.");
    EXPECT_STREQ(e.what(), "bad exception");
    EXPECT_THROW(throw e, std::bad_exception);
    std::unique_ptr<Qn::ExBase> copy(e.clone());
    EXPECT_NE(dynamic_cast<Qn::ExBadException*>(copy.get()), nullptr);
}
