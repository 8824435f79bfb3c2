// The test harness: group registration, the test-file loader and its limits,
// the timed cycles and their table (on manual clocks), and every exit status of
// TestMgr::runTest. Groups register statically, hence a program of its own.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include <base/exInternalError.h>
#include <base/hmGC.h>
#include <base/testGroup.h>
#include <base/testMgr.h>
#include <base/testPerformer.h>
#include <base/trace.h>
#include <support/lostBlock.h>
#include <support/manualTimer.h>
#include <support/reasonOf.h>
#include <support/tempDirFixture.h>
#include <support/traceCollector.h>

namespace {

// The clocks of the performer's profilers; groups advance them.
double timeOfDayNow = 0.0;
double hardwareNow = 0.0;

// Records its calls. Arguments: "<time-of-day seconds> <hardware seconds>" that
// a cycle advances the clocks by, "throw-internal", "throw-std", "throw-int",
// "lose-block"; anything else is kept and ignored.
class Recorder : public Qn::TestGroup {
  public:
    explicit Recorder(const char* name) : TestGroup(name) {}
    void prepareCycle(int argc, const char* const* argv) override {
        std::string call = "prepare";
        for (int i = 0; i < argc; ++i) call += std::string(" ") + argv[i];
        calls.push_back(call + (argv[argc] == nullptr ? "" : " <no null entry>"));
    }
    void runCycle(int argc, const char* const* argv) override {
        calls.push_back("run");
        const std::string first = argc > 0 ? argv[0] : "";
        if (first == "throw-internal") throw Qn::ExInternalError("g.cpp", 7, "broken");
        if (first == "throw-std") throw std::out_of_range("far");
        if (first == "throw-int") throw 42;
        if (first == "lose-block") lost.lose();
        if (argc == 2 && std::isdigit(static_cast<unsigned char>(first[0]))) {
            timeOfDayNow += std::atof(argv[0]);
            hardwareNow += std::atof(argv[1]);
        }
    }
    void terminate() override { calls.push_back("terminate"); }
    void printResults(std::ostream& out) override {
        calls.push_back("print");
        out << "results of " << getName();
    }

    std::vector<std::string> calls;
    QnTest::LostBlock lost;
};

Recorder alpha("Alpha");
Recorder beta("Beta");
const std::string longestName(Qn::TestPerformer::NameSize - 1, 'L');
Recorder longest(longestName.c_str());

// The performer lives as long as the program's tests, as it lives as long as
// the "testing" package in a test program.
class PerformerEnvironment : public ::testing::Environment {
  public:
    void SetUp() override {
        Qn::TestPerformer::createInstance(
            Qn::ObjPtr<Qn::IntervalTimer>(new QnTest::ManualTimer(timeOfDayNow)),
            Qn::ObjPtr<Qn::IntervalTimer>(new QnTest::ManualTimer(hardwareNow)));
    }
    void TearDown() override { Qn::TestPerformer::destroyInstance(); }
};
::testing::Environment* const performerEnvironment =
    ::testing::AddGlobalTestEnvironment(new PerformerEnvironment);

class HarnessTest : public QnTest::TempDirFixture {
  protected:
    void SetUp() override {
        TempDirFixture::SetUp();
        alpha.calls.clear();
        beta.calls.clear();
    }

    // Writes a test file and runs it; returns the reason of the internal error
    // it raises.
    std::string execute(const std::string& content) {
        writeFile("test.txt", content);
        return QnTest::reasonOf<Qn::ExInternalError>(
            [&] { Qn::TestPerformer::getInstance().execute(path("test.txt").getText()); });
    }
    static std::string repeat(const std::string& text, int times) {
        std::string result;
        while (times-- > 0) result += text;
        return result;
    }

    QnTest::TraceCollector trace;
};

const char nothingRaised[] = "<nothing raised>";

}  // namespace

TEST_F(HarnessTest, RegistersGroupsByExactName) {
    EXPECT_EQ(Qn::TestGroup::getInstance("Alpha"), &alpha);
    EXPECT_EQ(Qn::TestGroup::getInstance("alpha"), nullptr);
    EXPECT_EQ(Qn::TestGroup::getInstance(nullptr), nullptr);
    EXPECT_EQ(QnTest::reasonOf<Qn::ExInternalError>([] { Recorder twin("Alpha"); }),
              "Duplicate test group : \"Alpha\".");
    {
        Recorder gamma("Gamma");
        EXPECT_EQ(QnTest::reasonOf<Qn::ExInternalError>([&] { gamma.setName("Beta"); }),
                  "Duplicate test group : \"Beta\".");
        EXPECT_STREQ(gamma.getName(), "Gamma") << "a refused name leaves the old one";
        gamma.setName(nullptr);
        EXPECT_EQ(Qn::TestGroup::getInstance("Gamma"), nullptr);
        gamma.setName("Delta");
        EXPECT_EQ(Qn::TestGroup::getInstance("Delta"), &gamma);
    }
    EXPECT_EQ(Qn::TestGroup::getInstance("Delta"), nullptr) << "destruction unregisters";
    EXPECT_EQ(Qn::TestGroup::getInstance("Alpha"), &alpha);

    alpha.setDescription("first");
    Qn::TestGroup::printInstances();
    alpha.setDescription(nullptr);
    const std::vector<std::string> listed = {"\nRegistered test groups:\n",
                                             "  Alpha                    first", "  Beta",
                                             "  " + longestName, ""};
    EXPECT_EQ(trace.lines, listed);
}

TEST_F(HarnessTest, HeadersAndLogsFollowTheTestLevel) {
    Qn::TestGroup::caseHeader("quiet");
    EXPECT_TRUE(trace.lines.empty()) << "the level is off by default";
    Qn::TestGroup::HarnessTraceLevel.setEnabled(true);
    Qn::TestGroup::caseHeader("case 1");
    Qn::TestGroup::log("step");
    Qn::TestGroup::HarnessTraceLevel.setEnabled(false);
    const std::vector<std::string> expected = {std::string(18, '*'), "***** case 1 *****",
                                               std::string(18, '*'), std::string(9, '-'),
                                               "[ step ] ",          std::string(9, '-')};
    EXPECT_EQ(trace.lines, expected);
}

TEST_F(HarnessTest, RunsCyclesAndReportsTheTable) {
    EXPECT_EQ(execute("Alpha 2 0.002 0.001\n\n  # a comment\r\nBeta\t1  x\ty\r\n"), nothingRaised);
    const std::vector<std::string> cycle = {"prepare 0.002 0.001", "run", "terminate", "print"};
    std::vector<std::string> twice = cycle;
    twice.insert(twice.end(), cycle.begin(), cycle.end());
    EXPECT_EQ(alpha.calls, twice);
    EXPECT_EQ(beta.calls, (std::vector<std::string>{"prepare x y", "run", "terminate", "print"}));

    ASSERT_EQ(trace.lines.size(), 10u);
    EXPECT_EQ(trace.lines[0], "Executing Alpha cycle 0 0.002 0.001 ");
    EXPECT_EQ(trace.lines[1],
              "End of cycle.  Call terminate.\n_todProfiler\ncycles = 1, total = 0.002000 s, "
              "average = 0.002000 s, minimum = 0.002000 s, maximum = 0.002000 s\n_hwProfiler\n"
              "cycles = 1, total = 0.001000 s, average = 0.001000 s, minimum = 0.001000 s, "
              "maximum = 0.001000 s");
    EXPECT_EQ(trace.lines[2], "results of Alpha");
    EXPECT_EQ(trace.lines[3], "Executing Alpha cycle 1 0.002 0.001 ");
    EXPECT_EQ(trace.lines[6], "Executing Beta cycle 0 x y ");
    EXPECT_EQ(trace.lines[9],
              "Group Name              nbCycles   average time    options\n"
              "----------              --------   ------------    -------\n"
              "Alpha                          2       0.001000    0.002 0.001 \n"
              "Beta                           1       0.000000    x y ");
}

TEST_F(HarnessTest, AveragesOverThirtySecondsComeFromTheTimeOfDay) {
    // The profilers start afresh for each record: the second record alone
    // stays under 30 seconds.
    EXPECT_EQ(execute("Alpha 2 31 0.5\nAlpha 1 29 0.25\n"), nothingRaised);
    const std::string& table = trace.lines.back();
    EXPECT_NE(table.find("\nAlpha                          2      31.000000    31 0.5 \n"),
              std::string::npos)
        << table;
    EXPECT_NE(table.find("\nAlpha                          1       0.250000    29 0.25 "),
              std::string::npos)
        << table;
}

TEST_F(HarnessTest, LoaderLimits) {
    const std::string sixteen = repeat(" a", 16);
    const std::string fullLine =
        "Alpha 1 " + std::string(Qn::TestPerformer::MaxLineLength - 8, 'w');
    const struct {
        std::string content;
        std::string reason;
    } rows[] = {
        {repeat("Alpha 1\n", 128), nothingRaised},
        {"# header\n" + repeat("Alpha 1\n", 129), "Too many test groups in file."},
        {longestName + " 1\n", nothingRaised},
        {longestName + "M 1\n", "Test group name is too long: <" + longestName + "M>."},
        {"Alpha 1\nGamma 1\n", "Invalid test group name: <Gamma>."},
        {"Alpha 0\n", "Invalid number of cycles: <0>."},
        {"Alpha abc\n", "Invalid number of cycles: <abc>."},
        {"Alpha 3x\n", "Invalid number of cycles: <3x>."},
        {"Alpha -2\n", "Invalid number of cycles: <-2>."},
        {"Alpha 99999999999\n", "Invalid number of cycles: <99999999999>."},
        {"Alpha\n", "Invalid number of cycles: <>."},
        {"Alpha 1" + sixteen + "\n", nothingRaised},
        {"Alpha 1" + sixteen + " a\n", "Too many args to test group."},
        {fullLine + "\n", nothingRaised},
        {"Alpha 1\n" + fullLine + "w\n", "Test file line 2 is longer than 255 characters."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.content.substr(0, 60));
        alpha.calls.clear();
        EXPECT_EQ(execute(row.content), row.reason);
        if (row.reason != nothingRaised) {
            EXPECT_TRUE(alpha.calls.empty()) << "nothing runs";
        }
    }
    const std::string missing = path("missing.txt").getText();
    try {
        Qn::TestPerformer::getInstance().execute(missing.c_str());
        ADD_FAILURE() << "a missing file loads";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_EQ(std::string(e.getReason()), "Invalid file name : <" + missing + ">.");
        EXPECT_EQ(std::string(e.getFileName()), "src/base/testPerformer.cpp");
    }
}

TEST_F(HarnessTest, RunTestExitStatus) {
    const std::string file = path("run.txt").getText();
    writeFile("run.txt", "Beta 1 p\n");
    const std::string usage =
        "Abnormal termination: \nArguments: \n\n<testGroup> { <args> } \n<testGroup> -perf "
        "<fileName>\n<testGroup> -dumpLeaks { <args> }\n<testGroup> -dumpLibs { <args> }\n"
        "<testGroup> -detectLeaks { <args> }\n";
    const std::string success = "Test group executed successfully.";
    const std::string warning = " specified but MemDebug version of smartheap is not loaded";
    const struct {
        std::vector<const char*> args;
        int status;
        std::vector<std::string> lines;  // expected among the lines, in order
        std::vector<std::string> alphaCalls;
    } rows[] = {
        {{"prog"}, 1, {usage, "\nRegistered test groups:\n"}, {}},
        {{"prog", "Alpha", "-perf"}, 1, {usage}, {}},
        {{"prog", "Alpha", "-perf", file.c_str(), "x"}, 1, {usage}, {}},
        {{"prog", "Nobody"}, 1, {"Test not performed: Unknown test group name.", "  Alpha"}, {}},
        {{"prog", "Alpha", "a", "-perf"},
         0,
         {"results of Alpha", success},
         {"prepare a -perf", "run", "terminate", "print"}},
        {{"prog", "Alpha", "-detectLeaks", "-dumpLeaks"},
         0,
         {"Warning: -detectLeaks" + warning, "Warning: -dumpLeaks" + warning, success},
         {"prepare", "run", "terminate", "print"}},
        {{"prog", "Alpha", "-dumpLibs", "-perf", file.c_str()},
         0,
         {"Executing Beta cycle 0 p ", success},
         {}},
        {{"prog", "Alpha", "throw-internal"},
         2,
         {"Exception encountered: [Exception Type = Qn::ExInternalError, File = g.cpp, "
          "Line=7]\nbroken"},
         {"prepare throw-internal", "run"}},
        {{"prog", "Alpha", "throw-std"},
         2,
         {"Exception encountered: [Exception Type = std::out_of_range] far"},
         {"prepare throw-std", "run"}},
        {{"prog", "Alpha", "throw-int"},
         2,
         {"Exception encountered: Unknown exception."},
         {"prepare throw-int", "run"}},
        {{"prog", "Alpha", "-perf", "missing.txt"},
         2,
         {"Exception encountered: [Exception Type = Qn::ExInternalError"},
         {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::PrintToString(row.args));
        trace.lines.clear();
        alpha.calls.clear();
        std::vector<const char*> argv = row.args;
        argv.push_back(nullptr);
        EXPECT_EQ(Qn::TestMgr::runTest(static_cast<int>(row.args.size()), argv.data()), row.status);
        size_t at = 0;
        for (const std::string& line : row.lines) {
            while (at < trace.lines.size() && trace.lines[at].rfind(line, 0) != 0) ++at;
            EXPECT_LT(at, trace.lines.size()) << "missing: " << line;
        }
        EXPECT_EQ(alpha.calls, row.alphaCalls);
    }
}

TEST_F(HarnessTest, RunTestOptionsAndGroupSettings) {
    const char* libs[] = {"prog", "Beta", "-dumpLibs", nullptr};
    EXPECT_EQ(Qn::TestMgr::runTest(3, libs), Qn::TestMgr::Success);
    ASSERT_FALSE(trace.lines.empty());
    EXPECT_EQ(trace.lines[0].rfind("Loaded Libraries:", 0), 0u);
    EXPECT_NE(trace.lines[0].find("\nRegistered versioned libraries:\n  libQNbase "),
              std::string::npos);

    beta.setGroupNameInArgs(true);
    beta.setPrintHeaders(true);
    beta.setDescription("second");
    trace.lines.clear();
    beta.calls.clear();
    const char* named[] = {"prog", "Beta", "v", nullptr};
    EXPECT_EQ(Qn::TestMgr::runTest(3, named), Qn::TestMgr::Success);
    beta.setGroupNameInArgs(false);
    beta.setPrintHeaders(false);
    beta.setDescription(nullptr);
    EXPECT_EQ(beta.calls.front(), "prepare Beta v");
    EXPECT_EQ(trace.lines.front(), "Test group Beta: second");

    const struct {
        const char* program;
        bool pixified;
    } programs[] = {{"/opt/prog.pixie", true},
                    {"C:\\bin\\prog.pixie.exe", true},
                    {"dir.pixie/prog", false},
                    {"prog", false}};
    for (const auto& row : programs) {
        SCOPED_TRACE(row.program);
        const char* argv[] = {row.program, "Beta", nullptr};
        EXPECT_EQ(Qn::TestMgr::runTest(2, argv), Qn::TestMgr::Success);
        EXPECT_EQ(Qn::TestGroup::isPixified(), row.pixified);
    }
}

TEST_F(HarnessTest, DetectedLeaksFailTheRun) {
    if (!Qn::HmGC::isLeakCheckerLoaded()) GTEST_SKIP() << "built without the leak checker";
    const char* dump[] = {"prog", "Alpha", "-dumpLeaks", "lose-block", nullptr};
    EXPECT_EQ(Qn::TestMgr::runTest(4, dump), Qn::TestMgr::Success) << "reported only";
    alpha.lost.free();
    const char* detect[] = {"prog", "Alpha", "-detectLeaks", "lose-block", nullptr};
    EXPECT_EQ(Qn::TestMgr::runTest(4, detect), Qn::TestMgr::LeaksDetected);
    alpha.lost.free();
    EXPECT_EQ(trace.lines.back(), "Abnormal termination: Memory leaks detected.");
}

using HarnessDeathTest = HarnessTest;

namespace {

// The messages go to the standard error stream, where the death test looks.
class ToError : public Qn::TraceManager {
  public:
    ToError() : TraceManager(2000) {}
    void print(const char* line) override { std::fprintf(stderr, "%s\n", line); }
};
class Terminating : public Qn::TestGroup {
  public:
    Terminating() : TestGroup("Terminating") {}
    void runCycle(int argc, const char* const*) override {
        if (argc == 0) std::terminate();
        throwThroughNoexcept();
    }
    // Called through a pointer, so the compiler does not see the throw.
    static void throwThroughNoexcept() noexcept { raise(); }
    static inline void (*volatile raise)() = [] { throw std::runtime_error("escaped"); };
};

}  // namespace

TEST_F(HarnessDeathTest, TerminateHandlerReports) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [](int argc) {
        ToError toError;
        Terminating group;
        const char* argv[] = {"prog", "Terminating", "x", nullptr};
        Qn::TestMgr::runTest(argc, argv);
    };
    EXPECT_DEATH(run(2), "Abnormal termination: Terminate handler called");
    EXPECT_DEATH(run(3), "Exception encountered: Bad exception encountered");
}
