#include <base/osFilePath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

#include <base/exInternalError.h>
#include <base/exSysErrorNative.h>
#include <base/osFileEx.h>
#include <support/platform.h>
#include <support/scopedEnv.h>
#include <support/tempDirFixture.h>

namespace {

using QnTest::onWindows;

std::string text(const Qn::OsFilePath& path) { return path.getText(); }

std::string currentDir() { return QnTest::toQnForm(std::filesystem::current_path()); }

struct NamesRow {
    const char* path;
    std::string base;
    std::string directory;
};

template <size_t N>
void expectNames(const NamesRow (&rows)[N]) {
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        Qn::OsFilePath path(row.path);
        EXPECT_EQ(text(path.getBaseName()), row.base);
        EXPECT_EQ(text(path.getDirectoryName()), row.directory);
    }
}

}  // namespace

TEST(OsFilePath, ConstructionAndAssignmentCopyTheText) {
    Qn::OsFilePath null(static_cast<const char*>(nullptr));
    EXPECT_TRUE(null.isEmpty());
    EXPECT_TRUE(null.isRelative());
    EXPECT_STREQ(null.getText(), "");

    Qn::OsFilePath a("C:\\a/b ");
    Qn::OsFilePath copy(a);
    EXPECT_EQ(text(copy), "C:\\a/b ");
    const Qn::OsFilePath& self = copy;
    copy = self;
    EXPECT_EQ(text(copy), "C:\\a/b ");
    copy.set(copy.getText());
    EXPECT_EQ(text(copy), "C:\\a/b ");
    copy = "x";
    EXPECT_EQ(text(copy), "x");
    EXPECT_EQ(text(a), "C:\\a/b ");

    Qn::OsFilePath moved(std::move(a));
    EXPECT_EQ(text(moved), "C:\\a/b ");
    EXPECT_TRUE(a.isEmpty());
    a = std::move(moved);
    EXPECT_EQ(text(a), "C:\\a/b ");
    a = Qn::OsFilePath();
    EXPECT_TRUE(a.isEmpty());

    EXPECT_THROW(a.set(nullptr), Qn::ExInternalError);
    EXPECT_THROW(a = static_cast<const char*>(nullptr), Qn::ExInternalError);
}

TEST(OsFilePath, AbsoluteNeedsThreeCharactersAndADriveOrAShare) {
    const struct {
        const char* path;
        bool absolute;
    } rows[] = {
        {"", false},     {"C:", false},    {"\\\\", false}, {"C:\\", true},    {"C:x", true},
        {"\\\\s", true}, {"\\dir", false}, {"dir", false},  {"/tmp/x", false}, {"ab:", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        Qn::OsFilePath path(row.path);
        EXPECT_EQ(path.isAbsolute(), row.absolute);
        EXPECT_EQ(path.isRelative(), !row.absolute);
    }
}

TEST(OsFilePath, ConcatenationInsertsOneSeparator) {
    const struct {
        const char* base;
        const char* element;
        bool asPath;
        const char* result;
    } rows[] = {
        {"C:\\a", "b", false, "C:\\a\\b"},
        {"C:\\", "b", false, "C:\\b"},
        {"", "b", false, "b"},
        {"C:\\dir", "", false, "C:\\dir\\"},
        {"", "", false, ""},
        {"a", "c/d", false, "a\\c/d"},
        {"a", "C:", false, "a\\C:"},
        {"C:\\a", "\\x", true, "C:\\a\\\\x"},
        {"C:\\", "\\x", true, "C:\\\\x"},
        {"C:\\a", "b\\c", true, "C:\\a\\b\\c"},
        {"d", "C:", true, "d\\C:"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.base) + " + " + row.element);
        Qn::OsFilePath base(row.base);
        Qn::OsFilePath sum = row.asPath ? base + Qn::OsFilePath(row.element) : base + row.element;
        EXPECT_EQ(text(sum), row.result);
        EXPECT_EQ(text(base), row.base);
        if (row.asPath) {
            base += Qn::OsFilePath(row.element);
        } else {
            base += row.element;
        }
        EXPECT_EQ(text(base), row.result);
    }
}

TEST(OsFilePath, RefusedConcatenationLeavesThePathUnchanged) {
    Qn::OsFilePath base("C:\\a");
    EXPECT_THROW(base += "a\\b", Qn::OsFileEx::ExSeparatorNotAllowed);
    EXPECT_THROW(base + "\\", Qn::OsFileEx::ExSeparatorNotAllowed);
    EXPECT_THROW(base += Qn::OsFilePath("D:\\x"), Qn::OsFileEx::ExIllegalPathConcat);
    EXPECT_THROW(base + Qn::OsFilePath("\\\\server\\share"), Qn::OsFileEx::ExIllegalPathConcat);
    EXPECT_THROW(base + Qn::OsFilePath("C:x"), Qn::OsFileEx::ExIllegalPathConcat);
    EXPECT_EQ(text(base), "C:\\a");
}

TEST(OsFilePath, DecompositionOfFullPaths) {
    const struct {
        const char* path;
        const char* base;  // nullptr: the platforms differ
        const char* directory;
        const char* extension;
    } rows[] = {
        {"C:\\dir\\file", "file", "C:\\dir", ""},
        {"C:\\file", "file", "C:", ""},
        {"C:\\", "", "C:", ""},
        {"C:\\d.ir\\file", "file", "C:\\d.ir", ""},
        {"C:\\a\\archive.tar.gz", "archive.tar.gz", "C:\\a", "gz"},
        {"C:\\a\\.cfg", ".cfg", "C:\\a", "cfg"},
        {"C:\\a\\name.", nullptr, "C:\\a", ""},
        {"C:\\a\\b\\..\\c.txt", "c.txt", "C:\\a", "txt"},
        {"C:\\a\\.\\b\\", "", "C:\\a\\b", ""},
        {"C:\\..\\..\\x", "x", "C:", ""},
        {"C:\\a\\\\b", "b", "C:\\a", ""},
        {"C:/a/b.c", "b.c", "C:\\a", "c"},
        {"C:\\my dir\\na\xe9me.t xt", "na\xe9me.t xt", "C:\\my dir", "t xt"},
        {"\\\\server\\share\\f.txt", "f.txt", "\\\\server\\share", "txt"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        Qn::OsFilePath path(row.path);
        if (row.base) {
            EXPECT_EQ(text(path.getBaseName()), row.base);
        }
        EXPECT_EQ(text(path.getDirectoryName()), row.directory);
        EXPECT_STREQ(path.getExtension().get(), row.extension);
    }
}

TEST(OsFilePath, RelativePathsResolveAgainstTheCurrentDirectory) {
    std::string cwd = currentDir();
    std::string parent = Qn::OsFilePath(cwd.c_str()).getDirectoryName().getText();
    std::string root = cwd.substr(0, 2);
    const NamesRow rows[] = {
        {".", Qn::OsFilePath(cwd.c_str()).getBaseName().getText(), cwd},
        {"..", Qn::OsFilePath(parent.c_str()).getBaseName().getText(), parent},
        {"x.txt", "x.txt", cwd},
        {"sub\\..\\y", "y", cwd},
        {"\\top\\z", "z", root + "\\top"},
    };
    expectNames(rows);
}

TEST(OsFilePath, PosixKeepsTrailingDotsAndResolvesOtherDrives) {
    if (onWindows) GTEST_SKIP() << "Windows strips trailing dots and blanks";
    std::string cwd = currentDir().substr(2);
    const NamesRow rows[] = {
        {"C:\\a\\b. ", "b. ", "C:\\a"},
        {"C:\\a\\name.", "name.", "C:\\a"},
        {"D:x", "x", "D:" + cwd},
        {"/tmp/f", "f", "C:\\tmp"},
    };
    expectNames(rows);
}

TEST(OsFilePath, UnresolvablePathsRaiseSystemErrors) {
    std::string longPath = "C:\\" + std::string(1100, 'a');
    for (const char* path : {"", longPath.c_str()}) {
        SCOPED_TRACE(std::string(path).substr(0, 10));
        EXPECT_THROW(Qn::OsFilePath(path).getBaseName(), Qn::ExSysErrorNative);
        EXPECT_THROW(Qn::OsFilePath(path).getDirectoryName(), Qn::ExSysErrorNative);
        EXPECT_THROW(Qn::OsFilePath(path).getExtension(), Qn::ExSysErrorNative);
    }
}

TEST(OsFilePath, WellKnownDirectories) {
    std::string root = text(Qn::OsFilePath::getRootDir());
    ASSERT_EQ(root.size(), 3u);
    EXPECT_EQ(root.substr(1), ":\\");
    if (!onWindows) {
        EXPECT_EQ(root, "C:\\");
    }

    std::string temp = text(Qn::OsFilePath::getTempDir());
    ASSERT_FALSE(temp.empty());
    EXPECT_EQ(temp.back(), '\\');
    EXPECT_TRUE(Qn::OsFilePath(temp.c_str()).isAbsolute());
    if (!onWindows) {
        const struct {
            const char* tmpdir;
            const char* result;
        } rows[] = {{nullptr, "C:\\tmp\\"},
                    {"", "C:\\tmp\\"},
                    {"/var//x/", "C:\\var\\x\\"},
                    {"/a/b/../c", "C:\\a\\c\\"}};
        for (const auto& row : rows) {
            SCOPED_TRACE(row.tmpdir ? row.tmpdir : "(unset)");
            QnTest::ScopedEnv tmpdir("TMPDIR", row.tmpdir);
            EXPECT_EQ(text(Qn::OsFilePath::getTempDir()), row.result);
        }
    }

    {
        QnTest::ScopedEnv home("HOME", "/home/Some User/");
        EXPECT_EQ(text(Qn::OsFilePath::getHomeDir()), "\\home\\Some User\\");
    }
    {
        QnTest::ScopedEnv home("HOME", "D:\\Users\\me");
        EXPECT_EQ(text(Qn::OsFilePath::getHomeDir()), "D:\\Users\\me");
    }
    QnTest::ScopedEnv home("HOME", nullptr);
    EXPECT_THROW(Qn::OsFilePath::getHomeDir(), Qn::OsFileEx::ExHomeNotDefined);
}

TEST(OsFilePath, CompareIsBytewiseAndDumpWritesTheText) {
    const struct {
        const char* a;
        const char* b;
        int order;
    } rows[] = {{"a", "b", -1},  {"b", "a", 1},    {"", "", 0},          {"C:\\a", "c:\\A", -1},
                {"a", "ab", -1}, {"\xe9", "z", 1}, {"C:\\x", "C:\\x", 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.a) + " vs " + row.b);
        EXPECT_EQ(Qn::OsFilePath::compare(row.a, row.b), row.order);
    }
    EXPECT_STREQ(Qn::OsFilePath::getSeparator(), "\\");

    std::ostringstream out;
    Qn::OsFilePath("C:\\x y").dump(out) << '|' << Qn::OsFilePath("z");
    EXPECT_EQ(out.str(), "C:\\x y|z");
}
