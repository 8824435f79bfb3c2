#include <base/osFile.h>

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include <base/exInternalError.h>
#include <base/exSysErrorNative.h>
#include <base/osDateUtil.h>
#include <base/osFileEx.h>
#include <base/osFileReader.h>
#include <base/osFileWriter.h>
#include <support/platform.h>
#include <support/tempDirFixture.h>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

namespace {

using QnTest::onWindows;

namespace fs = std::filesystem;

using OsFileTest = QnTest::TempDirFixture;

// The local time now, moved by offset seconds.
Qn::OsDateTypes::DateRep localNow(int offset) {
    std::time_t now = std::time(nullptr) + offset;
    std::tm fields = *std::localtime(&now);
    return Qn::OsDateUtil::makeTime(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday,
                                    fields.tm_hour, fields.tm_min, fields.tm_sec);
}

// Exposes the protected handle operations.
struct OpenableFile : Qn::OsFile {
    using OsFile::close;
    using OsFile::open;
    using OsFile::OsFile;
};

// Makes a file read-only; false when that does not stop writers (as for root,
// or Wine run by root), where tests of refused access must be skipped.
bool makeReadOnly(const fs::path& path) {
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    return !std::ofstream(path, std::ios::app).is_open();
}

}  // namespace

TEST_F(OsFileTest, PathsAreCheckedBeforeAnySystemCall) {
    OpenableFile empty{Qn::OsFilePath()};
    const std::function<void()> nameOnly[] = {
        [&] { empty.exists(); },
        [&] { empty.create(Qn::OsFileTypes::Permissions{}, false); },
        [&] { empty.remove(); },
        [&] { empty.renameTo(path("x")); },
        [&] { empty.copyTo(path("x")); },
        [&] { empty.open(1); },
        [&] { empty.getAccess(); },
        [&] { empty.isReadable(); },
        [&] { empty.isWritable(); },
    };
    for (size_t i = 0; i < std::size(nameOnly); ++i) {
        SCOPED_TRACE(i);
        EXPECT_THROW(nameOnly[i](), Qn::OsFileEx::ExNullFilePath);
    }
    writeFile("f", "abc");
    Qn::OsFile file(path("f"));
    EXPECT_THROW(file.renameTo(Qn::OsFilePath()), Qn::OsFileEx::ExNullFilePath);
    EXPECT_THROW(file.copyTo(Qn::OsFilePath()), Qn::OsFileEx::ExNullFilePath);

    Qn::OsFile missing(path("missing"));
    std::string reason = "Invalid path: '" + std::string(missing.getPath().getText()) + "'.";
    const std::function<void()> existing[] = {
        [&] { missing.getSize(); },
        [&] { missing.getType(); },
        [&] { missing.isFile(); },
        [&] { missing.isDirectory(); },
        [&] { missing.isSymLink(); },
        [&] { missing.getOwner(); },
        [&] { missing.getLastModificationTime(); },
        [&] { missing.getLastAccessTime(); },
        [&] { missing.getUnbufferedInfo(); },
    };
    for (size_t i = 0; i < std::size(existing); ++i) {
        SCOPED_TRACE(i);
        try {
            existing[i]();
            ADD_FAILURE() << "no exception";
        } catch (const Qn::OsFileEx::ExInvalidPath& e) {
            EXPECT_EQ(e.what(), reason);
        }
    }
}

TEST_F(OsFileTest, TypesOfElements) {
    writeFile("plain file.txt", "x");
    writeFile("n\xc3\xa9.", "x");
    makeDir("d.ir");
    const struct {
        const char* name;
        Qn::OsFileTypes::ElementType type;
    } rows[] = {
        {"plain file.txt", Qn::OsFileTypes::ElementRegular},
        {onWindows ? "n\xc3\xa9" : "n\xc3\xa9.", Qn::OsFileTypes::ElementRegular},
        {"d.ir", Qn::OsFileTypes::ElementDirectory},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Qn::OsFile file(path(row.name));
        EXPECT_TRUE(file.exists());
        EXPECT_EQ(file.getType(), row.type);
        EXPECT_EQ(file.isFile(), row.type == Qn::OsFileTypes::ElementRegular);
        EXPECT_EQ(file.isDirectory(), row.type == Qn::OsFileTypes::ElementDirectory);
        EXPECT_FALSE(file.isSymLink());
    }
    EXPECT_FALSE(Qn::OsFile(path("missing")).exists());
}

TEST_F(OsFileTest, PosixSpecialFilesLinksAndFifosNeverBlockTheProbe) {
    if (onWindows) GTEST_SKIP() << "no FIFOs nor symbolic links";
#if !defined(_WIN32)
    ASSERT_EQ(mkfifo(native("fifo").c_str(), 0600), 0);
    Qn::OsFile fifo(path("fifo"));
    EXPECT_EQ(fifo.getType(), Qn::OsFileTypes::ElementSpecial);
    EXPECT_FALSE(fifo.isFile());
    EXPECT_TRUE(fifo.isReadable());
    EXPECT_FALSE(fifo.isWritable());  // no reader: a blocking open would wait forever
    EXPECT_EQ(fifo.getAccess(), Qn::OsFileTypes::AccessRead);

    writeFile("target", "x");
    fs::create_symlink(native("target"), native("link"));
    Qn::OsFile link(path("link"));
    EXPECT_TRUE(link.isSymLink());
    EXPECT_TRUE(link.isFile());
    EXPECT_FALSE(Qn::OsFile(path("target")).isSymLink());

    // The native form of a path reaches the same element.
    EXPECT_TRUE(Qn::OsFile(native("target").string().c_str()).isFile());
#endif
}

TEST_F(OsFileTest, AccessProbesNeverThrow) {
    writeFile("rw", "x");
    writeFile("ro", "x");
    bool refused = makeReadOnly(native("ro"));
    EXPECT_EQ(Qn::OsFile(path("rw")).getAccess(),
              Qn::OsFileTypes::AccessRead | Qn::OsFileTypes::AccessWrite);
    EXPECT_EQ(Qn::OsFile(path("missing")).getAccess(), 0);
    EXPECT_FALSE(Qn::OsFile(path("missing")).isReadable());
    EXPECT_FALSE(Qn::OsFile(path("missing")).isWritable());
    EXPECT_FALSE(Qn::OsFile(path("missing") + "below").isReadable());
    if (refused) {
        Qn::OsFile readOnly(path("ro"));
        EXPECT_EQ(readOnly.getAccess(), Qn::OsFileTypes::AccessRead);
        EXPECT_TRUE(readOnly.isReadable());
        EXPECT_FALSE(readOnly.isWritable());
    }
}

TEST_F(OsFileTest, SizeOwnerAndTimes) {
    // Margins of two seconds: file times and time() read different clocks.
    Qn::OsDateTypes::DateRep before = localNow(-2);
    writeFile("five", "12345");
    writeFile("empty", "");
    Qn::OsDateTypes::DateRep after = localNow(2);
    EXPECT_EQ(Qn::OsFile(path("five")).getSize(), 5u);
    EXPECT_EQ(Qn::OsFile(path("empty")).getSize(), 0u);
    EXPECT_THROW(Qn::OsFile(dir()).getSize(), Qn::ExSysErrorNative);

    std::string owner = Qn::OsFile(path("five")).getOwner().get();
    EXPECT_EQ(owner.empty(), onWindows);

    Qn::OsFile five(path("five"));
    for (const auto& time : {five.getLastModificationTime(), five.getLastAccessTime()}) {
        ASSERT_TRUE(time->isSet());
        // File systems may round times down to two seconds.
        EXPECT_FALSE(*time < Qn::OsDateUtil::makeTime(before.getYear(), before.getMonth(),
                                                      before.getDay(), before.getHour(),
                                                      before.getMinute(), 0));
        EXPECT_FALSE(after < *time);
    }
}

TEST_F(OsFileTest, CreateRemoveAndRename) {
    Qn::OsFile file(path("new"));
    file.create(Qn::OsFileTypes::Permissions{}, true);
    EXPECT_TRUE(file.isFile());
    EXPECT_THROW(file.create(Qn::OsFileTypes::Permissions{}, true), Qn::OsFileEx::ExFileExists);
    writeFile("new", "content");
    file.create(Qn::OsFileTypes::Permissions{}, false);
    EXPECT_EQ(file.getSize(), 0u);

    file.renameTo(path("renamed"));
    EXPECT_EQ(file.getPath(), path("renamed"));
    EXPECT_TRUE(fs::exists(native("renamed")));
    EXPECT_FALSE(fs::exists(native("new")));
    Qn::OsFile gone(path("gone"));
    EXPECT_THROW(gone.renameTo(path("other")), Qn::ExSysErrorNative);
    EXPECT_EQ(gone.getPath(), path("gone"));

    file.remove();
    EXPECT_FALSE(fs::exists(native("renamed")));
    EXPECT_THROW(file.remove(), Qn::ExSysErrorNative);
}

TEST_F(OsFileTest, PosixAppliesPermissionsOnCreation) {
    if (onWindows) GTEST_SKIP() << "Windows ignores permissions";
    Qn::OsFile file(path("owner-read"));
    file.create(Qn::OsFileTypes::Permissions{Qn::OsFileTypes::Permissions::Read, 0, 0}, true);
    EXPECT_EQ(fs::status(native("owner-read")).permissions(), fs::perms::owner_read);
    if (!std::ofstream(native("owner-read"), std::ios::app).is_open()) {
        EXPECT_FALSE(file.isWritable());
    }
}

TEST_F(OsFileTest, CopyToFilesAndDirectories) {
    std::string big(200000, 'b');
    for (size_t i = 0; i < big.size(); i += 7) big[i] = static_cast<char>(i);
    writeFile("big", big);
    writeFile("old", "previous content that is longer");
    makeDir("into");
    const struct {
        Qn::OsFilePath target;
        const char* written;
    } rows[] = {
        {path("copy"), "copy"},
        {path("old"), "old"},
        {path("into"), "into/big"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.written);
        Qn::OsFile source(path("big"));
        source.copyTo(row.target);
        EXPECT_TRUE(readFile(row.written) == big);
        EXPECT_EQ(source.getPath(), path("big"));
    }
    EXPECT_THROW(Qn::OsFile(path("missing")).copyTo(path("c2")), Qn::ExSysErrorNative);
    EXPECT_FALSE(fs::exists(native("c2")));

    writeFile("locked", "keep");
    if (!makeReadOnly(native("locked"))) return;
    try {
        Qn::OsFile(path("big")).copyTo(path("locked"));
        ADD_FAILURE() << "no exception";
    } catch (const Qn::OsFileEx::ExPathNotWritable& e) {
        EXPECT_EQ(e.what(), "Invalid path: '" + std::string(path("locked").getText()) + "'.");
    }
    EXPECT_EQ(readFile("locked"), "keep");
}

TEST_F(OsFileTest, ReaderAndWriter) {
    Qn::OsFileWriter writer(path("w"));
    writer.open();
    writer.write("hello ", 6);
    writer.close();
    writer.close();
    Qn::OsFileWriter appender(path("w"), Qn::OsFileTypes::Permissions{}, true);
    appender.open();
    appender.write("world", 5);
    appender.close();
    EXPECT_EQ(readFile("w"), "hello world");

    Qn::OsFileReader reader(path("w"));
    EXPECT_FALSE(reader.isOpen());
    reader.open();
    char buffer[4];
    std::string read;
    while (size_t count = reader.read(buffer, sizeof buffer)) {
        EXPECT_LE(count, sizeof buffer);
        read.append(buffer, count);
    }
    EXPECT_EQ(read, "hello world");
    EXPECT_EQ(reader.read(buffer, sizeof buffer), 0u);
    EXPECT_THROW(reader.open(), Qn::ExInternalError);
    reader.close();
    EXPECT_THROW(reader.read(buffer, sizeof buffer), Qn::ExInternalError);

    Qn::OsFileWriter truncating(path("w"));
    truncating.open();
    truncating.close();
    EXPECT_EQ(readFile("w"), "");

    EXPECT_THROW(Qn::OsFileReader(path("missing")).open(), Qn::ExSysErrorNative);
    EXPECT_THROW(Qn::OsFileWriter(path("missing") + "w").open(), Qn::ExSysErrorNative);
    EXPECT_THROW(Qn::OsFileReader(Qn::OsFilePath()).open(), Qn::OsFileEx::ExNullFilePath);
    EXPECT_THROW(Qn::OsFileWriter(Qn::OsFilePath()).open(), Qn::OsFileEx::ExNullFilePath);

    OpenableFile file(path("w"));
    int64_t handle = file.open(3);
    file.close(handle);
    EXPECT_THROW(file.open(0), Qn::ExInternalError);
    EXPECT_THROW(OpenableFile(path("missing")).open(1), Qn::ExSysErrorNative);
}

TEST_F(OsFileTest, UnbufferedInfoOfALocalVolume) {
    writeFile("f", "x");
    auto info = Qn::OsFile(path("f")).getUnbufferedInfo();
    EXPECT_GE(info->bufferAlignment, 1u);
    EXPECT_EQ(info->offsetAlignment & (info->offsetAlignment - 1), 0u);
    EXPECT_GE(info->offsetAlignment, 512u);
    EXPECT_EQ(info->maxTransfer, 0x7FFFFFFFu);
    if (!onWindows) return;
    fs::current_path(native());
    try {
        Qn::OsFile("f").getUnbufferedInfo();
        ADD_FAILURE() << "no exception";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.what(), "Assertion 'path[1] == ':'' failed.");
    }
    fs::current_path(fs::temp_directory_path());
}
