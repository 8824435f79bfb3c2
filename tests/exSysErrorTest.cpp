#include <base/exSysError.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>

#include <base/exSysErrorANSI.h>
#include <base/exSysErrorNative.h>

namespace {

// Exposes the message trimming shared by the system errors.
struct Trimmer : Qn::ExSysErrorANSI {
    Trimmer() : ExBase("t", 0), ExSysErrorANSI("t", 0, 0) {}
    static std::string trim(std::string text) {
        trimLineEnd(text.data());
        return text.c_str();
    }
};

}  // namespace

TEST(ExSysError, AnsiTakesErrnoAndItsText) {
    errno = 2;
    Qn::ExSysErrorANSI e("s.cpp", 10);
    EXPECT_EQ(e.getError(), 2);
    EXPECT_STREQ(e.getReason(), std::strerror(2));
    EXPECT_STREQ(e.what(), std::strerror(2));
    EXPECT_THROW(throw e, std::runtime_error);
    EXPECT_THROW(throw e, Qn::ExSysError);
}

TEST(ExSysError, NativeClassIsASysErrorWithClone) {
    Qn::ExSysErrorNative e("s.cpp", 11);
    const Qn::ExBase& base = e;
    std::unique_ptr<Qn::ExBase> copy(base.clone());
    auto* native = dynamic_cast<Qn::ExSysErrorNative*>(copy.get());
    ASSERT_NE(native, nullptr);
    EXPECT_EQ(native->getError(), e.getError());
    EXPECT_STREQ(native->getReason(), e.getReason());
}

TEST(ExSysError, LineEndOfSystemMessagesIsRemoved) {
    EXPECT_EQ(Trimmer::trim("Access denied.\r\n"), "Access denied.");
    EXPECT_EQ(Trimmer::trim("Access denied.\n"), "Access denied.");
    EXPECT_EQ(Trimmer::trim("Access denied."), "Access denied.");
    EXPECT_EQ(Trimmer::trim("\n"), "");
    EXPECT_EQ(Trimmer::trim(""), "");
}
