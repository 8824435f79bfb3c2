// Build information: versions, stamps, the validation rules and the lists of
// loaded and registered libraries.
#include <base/dbgBuildInfoRegistry.h>

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>

#include <base/dbgBuildInfoEx.h>

using Qn::DbgBuildInfo;
using Qn::DbgBuildInfoEx;
using Qn::DbgBuildInfoRegistry;
using Qn::DbgVersion;
using Qn::Vector;

namespace {

const char* const BaseStamp = "Mar  4 2025 12:00:00";

DbgBuildInfo library(const char* name, DbgVersion baseVersion = DbgVersion(0, 1, 0),
                     const char* stamp = "2025-03-04 13:00:00") {
    return DbgBuildInfo(name, DbgVersion(2, 0, 1), stamp, baseVersion);
}

DbgBuildInfo application(const char* name, const char* stamp = "2025-03-05 09:00:00") {
    return DbgBuildInfo(name, DbgVersion(1, 0, 0), stamp, DbgVersion(0, 1, 3),
                        DbgBuildInfo::Application);
}

// The reason of what validate() raises, or "" when it raises nothing.
std::string failureOf(const DbgBuildInfoRegistry& registry, bool checkStamps) {
    try {
        registry.validate(checkStamps);
    } catch (const DbgBuildInfoEx& e) {
        return e.getReason();
    }
    return "";
}

}  // namespace

TEST(DbgBuildInfo, VersionCompatibility) {
    const struct {
        DbgVersion built;
        DbgVersion loaded;
        bool compatible;
    } rows[] = {
        {{0, 1, 0}, {0, 1, 7}, true},  {{0, 1, 9}, {0, 1, 0}, true},  {{0, 1, 0}, {0, 2, 0}, false},
        {{0, 2, 0}, {0, 1, 0}, false}, {{1, 2, 0}, {1, 3, 0}, true},  {{1, 3, 0}, {1, 2, 9}, false},
        {{1, 0, 0}, {2, 0, 0}, false}, {{2, 0, 0}, {1, 9, 0}, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.built.toString() + " with " + row.loaded.toString());
        EXPECT_EQ(row.built.isCompatibleWith(row.loaded), row.compatible);
    }
    EXPECT_FALSE(DbgVersion(1, -1, 0).isValid());
}

TEST(DbgBuildInfo, ReadsBothStampForms) {
    const struct {
        const char* stamp;
        long long value;
    } rows[] = {
        {"Jan  2 2025 10:11:12", 20250102101112},
        {"Dec 31 1999 23:59:59", 19991231235959},
        {"2025-01-02 10:11:12", 20250102101112},
        {"Jan  2 2025 10:11", -1},
        {"Jan  2 2025 10:11:12 ", -1},
        {"Jun 31 2025 24:00:00", -1},
        {"Foo  2 2025 10:11:12", -1},
        {"2025-13-02 10:11:12", -1},
        {"", -1},
        {"build 42", -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.stamp);
        EXPECT_EQ(DbgBuildInfo::parseStamp(row.stamp), row.value);
    }
    EXPECT_EQ(DbgBuildInfo::parseStamp(nullptr), -1);
    EXPECT_GT(DbgBuildInfo::parseStamp(QN_BUILD_STAMP), 20250000000000);
}

TEST(DbgBuildInfo, ValidationRules) {
    const DbgBuildInfo base("libQNbase", DbgVersion(0, 1, 2), BaseStamp, DbgVersion(0, 1, 2));
    const struct {
        const char* what;
        Vector<DbgBuildInfo> entries;
        std::string failure;
        bool stampsOnly;  // raised only with stamp checking
    } rows[] = {
        {"a consistent set", {library("libQNrender"), application("viewer")}, "", false},
        {"empty name", {library("")}, "Invalid library name: <>.", false},
        {"negative version",
         {library("libQNio", DbgVersion(0, -1, 0))},
         "Invalid version of <libQNio>: 0.-1.0.",
         false},
        {"loaded twice",
         {library("libQNio"), library("libQNio")},
         "Library registered twice: <libQNio>.",
         false},
        {"libQNbase again",
         {library("libQNbase")},
         "Library registered twice: <libQNbase>.",
         false},
        {"two applications",
         {application("viewer"), application("batch")},
         "Two applications registered: <viewer> and <batch>.",
         false},
        {"newer minor while 0.x",
         {library("libQNio", DbgVersion(0, 2, 0))},
         "Version mismatch: <libQNio> was built against libQNbase 0.2.0 but 0.1.2 is loaded.",
         false},
        {"the first violation is raised",
         {library("libQNio", DbgVersion(1, 0, 0)), library("")},
         "Invalid library name: <>.",
         false},
        {"unreadable stamp",
         {library("libQNio", DbgVersion(0, 1, 0), "today")},
         "Invalid build stamp of <libQNio>: <today>.",
         true},
        {"library older than libQNbase",
         {library("libQNio", DbgVersion(0, 1, 0), "Mar  4 2025 11:59:59")},
         "Stale build: libQNio (built Mar  4 2025 11:59:59) is older than libQNbase (built Mar  "
         "4 2025 12:00:00).",
         true},
        {"application older than a library",
         {application("viewer", "2025-03-04 12:30:00"), library("libQNio")},
         "Stale build: viewer (built 2025-03-04 12:30:00) is older than libQNio (built "
         "2025-03-04 13:00:00).",
         true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        DbgBuildInfoRegistry registry(base);
        for (const DbgBuildInfo& entry : row.entries) registry.add(entry);
        EXPECT_EQ(failureOf(registry, false), row.stampsOnly ? "" : row.failure);
        EXPECT_EQ(failureOf(registry, true), row.failure);
    }
}

TEST(DbgBuildInfo, ProcessRegistryStartsWithThisLibrary) {
    DbgBuildInfoRegistry& registry = DbgBuildInfoRegistry::getInstance();
    const DbgBuildInfo self = registry.getEntries().front();
    EXPECT_STREQ(self.getName(), "libQNbase");
    EXPECT_EQ(self.getVersion(), QN_BASE_VERSION);
    EXPECT_GT(self.getStampValue(), 0);

    // The version in the header is the project's version.
    std::ifstream project(std::string(QN_TEST_SOURCE_DIR) + "/../CMakeLists.txt");
    std::stringstream text;
    text << project.rdbuf();
    std::smatch match;
    const std::string cmake = text.str();
    ASSERT_TRUE(
        std::regex_search(cmake, match, std::regex(R"(project\(QnBase VERSION ([0-9.]+))")));
    EXPECT_EQ(match[1].str(), self.getVersion().toString());

    {
        Qn::DbgBuildInfoRegistration plugin("libQNtestPlugin", DbgVersion(3, 1, 4));
        const std::optional<DbgBuildInfo> found = registry.find("libQNtestPlugin");
        ASSERT_TRUE(found.has_value());
        EXPECT_EQ(found->getBaseVersion(), QN_BASE_VERSION);
        EXPECT_GT(found->getStampValue(), 0);
        EXPECT_NO_THROW(DbgBuildInfoRegistry::initialize());

        std::ostringstream dump;
        DbgBuildInfoRegistry::dumpLibs(dump);
        const std::string lines = dump.str();
        EXPECT_EQ(lines.rfind("Loaded Libraries:\n", 0), 0U);
        EXPECT_LT(lines.find("QNbase"), lines.find("Registered versioned libraries:\n"))
            << "the library is among the loaded ones\n"
            << lines;
        EXPECT_NE(lines.find("\nRegistered versioned libraries:\n  libQNbase 0.1.0 built "),
                  std::string::npos)
            << lines;
        EXPECT_NE(lines.find("\n  libQNtestPlugin 3.1.4 built "), std::string::npos) << lines;
    }
    EXPECT_FALSE(registry.find("libQNtestPlugin").has_value()) << "unregistered at unload";
    EXPECT_FALSE(registry.remove("libQNbase"));
}
