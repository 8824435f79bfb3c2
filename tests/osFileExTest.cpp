#include <base/osFileEx.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

// Raises Ex (built from the given arguments) and checks both ways of catching it.
template <class Std, class Ex, class... Args>
void expectReason(const std::string& reason, Args... args) {
    SCOPED_TRACE(reason);
    try {
        throw Ex("osFile.cpp", 12, args...);
    } catch (const Std& e) {
        EXPECT_EQ(std::string(e.what()), reason);
        const Qn::ExBase& base = dynamic_cast<const Qn::ExBase&>(e);
        EXPECT_EQ(base.getLineNo(), 12);
        std::unique_ptr<Qn::ExBase> copy(base.clone());
        EXPECT_NE(dynamic_cast<Ex*>(copy.get()), nullptr);
        EXPECT_NE(dynamic_cast<Qn::OsFileEx*>(copy.get()), nullptr);
    }
}

}  // namespace

TEST(OsFileEx, EachReasonWithItsStandardBase) {
    using E = Qn::OsFileEx;
    expectReason<std::runtime_error, E::ExIllegalPathConcat>(
        "Attempt to concatenate absolute path.");
    expectReason<std::invalid_argument, E::ExSeparatorNotAllowed>(
        "Separator not allowed in path elements.");
    expectReason<std::runtime_error, E::ExHomeNotDefined>(
        "Cannot get home directory from the environment.");
    expectReason<std::runtime_error, E::ExFileExists>("File already exists.");
    expectReason<std::runtime_error, E::ExNullFilePath>("File has null file path.");
    expectReason<std::invalid_argument, E::ExInvalidPath>("Invalid path: 'C:\\x'.", "C:\\x");
    expectReason<std::invalid_argument, E::ExPathNotWritable>("Invalid path: 'C:\\x'.", "C:\\x");
    expectReason<std::runtime_error, E::ExNoRemoteUnbuffered>(
        "Unbuffered IO is impossible on a remote drive: 'C:\\' is a remote path.", "C:\\");
}

TEST(OsFileEx, QuotedPathsAreCutAt256Characters) {
    std::string path(300, 'p');
    std::string cut(256, 'p');
    expectReason<std::invalid_argument, Qn::OsFileEx::ExInvalidPath>("Invalid path: '" + cut + "'.",
                                                                     path.c_str());
    expectReason<std::invalid_argument, Qn::OsFileEx::ExPathNotWritable>(
        "Invalid path: '" + cut + "'.", path.c_str());
    expectReason<std::runtime_error, Qn::OsFileEx::ExNoRemoteUnbuffered>(
        "Unbuffered IO is impossible on a remote drive: '" + cut + "' is a remote path.",
        path.c_str());
}
