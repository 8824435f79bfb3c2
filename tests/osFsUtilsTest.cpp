#include <base/osFsUtils.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include <base/exInternalError.h>
#include <base/exSysErrorNative.h>
#include <base/osFile.h>
#include <base/osFileEx.h>
#include <support/tempDirFixture.h>

namespace {

namespace fs = std::filesystem;

using OsFsUtilsTest = QnTest::TempDirFixture;

}  // namespace

TEST_F(OsFsUtilsTest, QueriesCountAMissingPathAsAFile) {
    writeFile("file", "");
    makeDir("dir");
    const struct {
        const char* name;
        bool exists, directory, file;
    } rows[] = {
        {"file", true, false, true},
        {"dir", true, true, false},
        {"missing", false, false, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::string text = path(row.name).getText();
        EXPECT_EQ(Qn::OsFsUtils::fileExists(text.c_str()), row.exists);
        EXPECT_EQ(Qn::OsFsUtils::isDirectory(text.c_str()), row.directory);
        EXPECT_EQ(Qn::OsFsUtils::isFile(text.c_str()), row.file);
    }
    EXPECT_THROW(Qn::OsFile(path("missing")).isFile(), Qn::OsFileEx::ExInvalidPath);
}

TEST_F(OsFsUtilsTest, NullAndEmptyPathsAreRefused) {
    const std::function<void(const char*)> calls[] = {
        [](const char* p) { Qn::OsFsUtils::createDir(p); },
        [](const char* p) { Qn::OsFsUtils::createDirWithParents(p); },
        [](const char* p) { Qn::OsFsUtils::removeDir(p); },
        [](const char* p) { Qn::OsFsUtils::createFile(p, Qn::OsFileTypes::Permissions{}, false); },
        [](const char* p) { Qn::OsFsUtils::deleteFile(p); },
    };
    for (size_t i = 0; i < std::size(calls); ++i) {
        SCOPED_TRACE(i);
        EXPECT_THROW(calls[i](nullptr), Qn::OsFileEx::ExNullFilePath);
        EXPECT_THROW(calls[i](""), Qn::OsFileEx::ExNullFilePath);
    }
    EXPECT_THROW(Qn::OsFsUtils::fileExists(nullptr), Qn::OsFileEx::ExNullFilePath);
    EXPECT_FALSE(Qn::OsFsUtils::fileExists(""));
}

TEST_F(OsFsUtilsTest, CreateAndRemoveDirectories) {
    std::string dirPath = path("d").getText();
    Qn::OsFsUtils::createDir(dirPath.c_str(), true);
    Qn::OsFsUtils::createDir(dirPath.c_str());
    EXPECT_TRUE(fs::is_directory(native("d")));
    writeFile("file", "");
    try {
        Qn::OsFsUtils::createDir(path("file").getText());
        ADD_FAILURE() << "no exception";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.what(), "A regular file with the same path name exists.");
    }
    EXPECT_THROW(Qn::OsFsUtils::createDir((path("missing") + "below").getText()),
                 Qn::ExSysErrorNative);

    Qn::OsFilePath deep = path("a") + "b c" + "d.e";
    Qn::OsFsUtils::createDirWithParents(deep.getText());
    Qn::OsFsUtils::createDirWithParents((deep + "").getText());
    EXPECT_TRUE(fs::is_directory(native("a/b c/d.e")));
    EXPECT_THROW(Qn::OsFsUtils::createDirWithParents((path("file") + "x").getText()),
                 Qn::ExInternalError);

    EXPECT_THROW(Qn::OsFsUtils::removeDir(path("a").getText()), Qn::ExSysErrorNative);
    Qn::OsFsUtils::removeDir(deep.getText());
    EXPECT_FALSE(fs::exists(native("a/b c/d.e")));
    EXPECT_THROW(Qn::OsFsUtils::removeDir(deep.getText()), Qn::ExSysErrorNative);
}

TEST_F(OsFsUtilsTest, CreateAndDeleteFiles) {
    std::string file = path("f").getText();
    Qn::OsFsUtils::createFile(file.c_str(), Qn::OsFileTypes::Permissions{}, true);
    EXPECT_THROW(Qn::OsFsUtils::createFile(file.c_str(), Qn::OsFileTypes::Permissions{}, true),
                 Qn::OsFileEx::ExFileExists);
    writeFile("f", "data");
    Qn::OsFsUtils::createFile(file.c_str(), Qn::OsFileTypes::Permissions{}, false);
    EXPECT_EQ(fs::file_size(native("f")), 0u);
    EXPECT_THROW(Qn::OsFsUtils::createFile((path("missing") + "f").getText(),
                                           Qn::OsFileTypes::Permissions{}, false),
                 Qn::ExSysErrorNative);

    Qn::OsFsUtils::deleteFile(file.c_str());
    EXPECT_FALSE(fs::exists(native("f")));
    Qn::OsFsUtils::deleteFile(file.c_str());
    makeDir("dir");
    EXPECT_THROW(Qn::OsFsUtils::deleteFile(path("dir").getText()), Qn::ExSysErrorNative);
}
