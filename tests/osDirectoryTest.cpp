#include <base/osDirectory.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <base/exSysErrorNative.h>
#include <base/osDirectoryFilter.h>
#include <base/osFileEx.h>
#include <base/osLeafFileFilter.h>
#include <base/osPassThroughFilter.h>
#include <support/tempDirFixture.h>

namespace {

namespace fs = std::filesystem;

using OsDirectoryTest = QnTest::TempDirFixture;

std::vector<std::string> sorted(const Qn::Vector<Qn::OsFilePath>& paths) {
    std::vector<std::string> texts;
    for (const auto& path : paths) texts.push_back(path.getText());
    std::sort(texts.begin(), texts.end());
    return texts;
}

// Keeps nothing: a listing must still visit every child without keeping one.
struct NothingFilter : Qn::OsFileFilter {
    bool filter(const Qn::OsFilePath&) const override { return false; }
};

}  // namespace

TEST_F(OsDirectoryTest, ListingsWithEachFilter) {
    for (const char* file : {"a.txt", "b.TXT", "atxt", "n\xc3\xa9 x"}) writeFile(file, "");
    for (const char* sub : {"d.txt", "sub dir"}) makeDir(sub);
    writeFile("sub dir/inner", "");
    Qn::OsDirectory directory(dir());
    const Qn::OsPassThroughFilter all;
    const Qn::OsDirectoryFilter directories;
    const Qn::OsLeafFileFilter files, dotTxt(".txt"), txt("txt"), longer("much longer than names");
    const NothingFilter nothing;
    const struct {
        const char* name;
        const Qn::OsFileFilter& filter;
        std::vector<std::string> leaves;
    } rows[] = {
        {"all", all, {"a.txt", "atxt", "b.TXT", "d.txt", "n\xc3\xa9 x", "sub dir"}},
        {"directories", directories, {"d.txt", "sub dir"}},
        {"files", files, {"a.txt", "atxt", "b.TXT", "n\xc3\xa9 x"}},
        {".txt", dotTxt, {"a.txt"}},
        {"txt", txt, {"a.txt", "atxt"}},
        {"longer", longer, {}},
        {"nothing", nothing, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(sorted(*directory.getChildrenPath(Qn::OsFileTypes::LeafName, row.filter)),
                  row.leaves);
        std::vector<std::string> full;
        for (const auto& leaf : row.leaves) full.push_back((dir() + leaf.c_str()).getText());
        EXPECT_EQ(sorted(*directory.getChildrenPath(Qn::OsFileTypes::FullPath, row.filter)), full);
        EXPECT_EQ(directory.hasChildren(row.filter), !row.leaves.empty());
        auto children = directory.getChildren(row.filter);
        ASSERT_EQ(children->size(), row.leaves.size());
        for (const auto& child : *children) {
            bool isDirectoryObject = dynamic_cast<Qn::OsDirectory*>(child.get()) != nullptr;
            EXPECT_EQ(isDirectoryObject, child->isDirectory()) << child->getPath();
        }
    }
}

TEST_F(OsDirectoryTest, EmptyAndMissingDirectories) {
    makeDir("empty");
    Qn::OsDirectory empty(path("empty") + "");  // a trailing separator changes nothing
    EXPECT_FALSE(empty.hasChildren(Qn::OsPassThroughFilter()));
    EXPECT_TRUE(
        empty.getChildrenPath(Qn::OsFileTypes::LeafName, Qn::OsPassThroughFilter())->empty());
    EXPECT_TRUE(empty.getChildren(Qn::OsLeafFileFilter())->empty());

    writeFile("file", "");
    for (const char* name : {"missing", "file"}) {
        SCOPED_TRACE(name);
        Qn::OsDirectory directory(path(name));
        EXPECT_THROW(
            directory.getChildrenPath(Qn::OsFileTypes::FullPath, Qn::OsPassThroughFilter()),
            Qn::ExSysErrorNative);
        EXPECT_THROW(directory.hasChildren(Qn::OsPassThroughFilter()), Qn::ExSysErrorNative);
    }
    Qn::OsDirectory unnamed{Qn::OsFilePath()};
    EXPECT_THROW(unnamed.getChildrenPath(Qn::OsFileTypes::FullPath, Qn::OsPassThroughFilter()),
                 Qn::OsFileEx::ExNullFilePath);
    EXPECT_THROW(unnamed.create(Qn::OsFileTypes::Permissions{}), Qn::OsFileEx::ExNullFilePath);
    EXPECT_THROW(unnamed.remove(), Qn::OsFileEx::ExNullFilePath);
    EXPECT_THROW(unnamed.copyTo(dir()), Qn::OsFileEx::ExNullFilePath);
}

TEST_F(OsDirectoryTest, CreateRemoveAndRemoveChildren) {
    Qn::OsDirectory directory(path("d"));
    directory.create(Qn::OsFileTypes::Permissions{});
    EXPECT_TRUE(directory.isDirectory());
    EXPECT_THROW(directory.create(Qn::OsFileTypes::Permissions{}), Qn::ExSysErrorNative);
    writeFile("file", "");
    EXPECT_THROW(Qn::OsDirectory(path("file")).create(Qn::OsFileTypes::Permissions{}),
                 Qn::ExSysErrorNative);

    writeFile("d/a.log", "");
    writeFile("d/b.txt", "");
    makeDir("d/empty.log");
    directory.removeChildren(Qn::OsLeafFileFilter(".log"));
    EXPECT_EQ(
        sorted(*directory.getChildrenPath(Qn::OsFileTypes::LeafName, Qn::OsPassThroughFilter())),
        (std::vector<std::string>{"b.txt", "empty.log"}));
    EXPECT_THROW(directory.remove(), Qn::ExSysErrorNative);
    directory.removeChildren(Qn::OsPassThroughFilter());
    EXPECT_FALSE(directory.hasChildren(Qn::OsPassThroughFilter()));
    directory.remove();
    EXPECT_FALSE(fs::exists(native("d")));
    EXPECT_THROW(directory.remove(), Qn::ExSysErrorNative);

    writeFile("full/inner/x", "");
    EXPECT_THROW(Qn::OsDirectory(path("full")).removeChildren(Qn::OsPassThroughFilter()),
                 Qn::ExSysErrorNative);
    EXPECT_TRUE(fs::exists(native("full/inner")));
}

TEST_F(OsDirectoryTest, CopyTreesOntoDirectoriesAndNewPaths) {
    writeFile("src/top.txt", "top");
    writeFile("src/deep/er/leaf", "leaf");
    makeDir("src/deep/empty");
    makeDir("existing");
    const struct {
        const char* target;
        const char* root;
    } rows[] = {{"existing", "existing/src"}, {"fresh", "fresh"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.target);
        Qn::OsDirectory(path("src")).copyTo(path(row.target));
        std::string root = row.root;
        EXPECT_EQ(readFile(root + "/top.txt"), "top");
        EXPECT_EQ(readFile(root + "/deep/er/leaf"), "leaf");
        EXPECT_TRUE(fs::is_directory(native(root + "/deep/empty")));
    }
    writeFile("plain", "");
    EXPECT_THROW(Qn::OsDirectory(path("src")).copyTo(path("plain")), Qn::OsFileEx::ExFileExists);

    Qn::OsDirectory::copyHierarchy(path("src") + "top.txt", path("single"));
    EXPECT_EQ(readFile("single"), "top");
}
