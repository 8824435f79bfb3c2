// The trace facility: options, level switching, line prefixes, entries,
// managers and the level table. Every test starts from "reset"; what needs a
// fresh process (QN_TRACE_OPTIONS, writeprotect, the first prefix) runs in the
// standalone trace programs.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <base/exInternalError.h>
#include <base/trace.h>
#include <base/traceDemo.h>
#include <base/traceManager.h>
#include <base/traceOptions.h>
#include <support/traceCollector.h>

namespace {

using Collector = QnTest::TraceCollector;

class TraceTest : public ::testing::Test {
  protected:
    void SetUp() override { Qn::Trace::setOptions("reset"); }
    void TearDown() override { Qn::Trace::setOptions("reset"); }

    static const Qn::TraceOptions& options() { return Qn::TraceOptions::getInstance(); }

    // What log() writes for a tracer at the given depth.
    static std::string prefixAt(int depth, const char* file = "src/base/trace.cpp", int line = 7) {
        Qn::Trace tracer;
        std::vector<std::unique_ptr<Qn::Trace::Entry>> entries;
        Collector quiet;
        for (int d = 0; d < depth; d += 2)
            entries.push_back(std::make_unique<Qn::Trace::Entry>(tracer, Qn::Trace::MainTraceLevel,
                                                                 "f", "f.cpp", 1));
        std::ostringstream out;
        tracer.log(out, file, line);
        while (!entries.empty()) entries.pop_back();
        return out.str();
    }
};

// A tracer whose own prefix shows where it goes in the line.
struct TaggedTrace : Qn::Trace {
    void printPrefix(std::ostream& out) const override { out << "[tag] "; }
};

}  // namespace

TEST_F(TraceTest, DefaultsShowMainAndExceptionsOnly) {
    EXPECT_TRUE(options().isOn());
    EXPECT_TRUE(options().isPrefix());
    EXPECT_FALSE(options().isLine());
    EXPECT_FALSE(options().isPid());
    EXPECT_TRUE(options().isIndent());
    EXPECT_EQ(options().getFnDirs(), 0);
    EXPECT_EQ(options().getFnWidth(), 20);
    EXPECT_FALSE(options().isPrintLevels());
    EXPECT_TRUE(Qn::Trace::isEnabled(Qn::Trace::MainTraceLevel));
    EXPECT_TRUE(Qn::Trace::isEnabled(Qn::Trace::registerLevel("Exceptions", nullptr)));
    Qn::TraceLevel& other = Qn::Trace::registerLevel("TraceTest.Other", __FILE__);
    EXPECT_FALSE(Qn::Trace::isEnabled(other));

    Qn::Trace::setOptions("off,show=TraceTest.Other,line,pid,noindent,noprefix,fndirs=2");
    EXPECT_FALSE(Qn::Trace::isEnabled(Qn::Trace::MainTraceLevel));
    Qn::Trace::setOptions("reset");
    EXPECT_FALSE(other.isEnabled());
    EXPECT_TRUE(options().isOn() && options().isIndent() && options().isPrefix());
    EXPECT_FALSE(options().isLine() || options().isPid());
    EXPECT_EQ(options().getFnDirs(), 0);
    EXPECT_TRUE(Qn::Trace::isEnabled(Qn::Trace::MainTraceLevel));
}

TEST_F(TraceTest, ShowAndHideAll) {
    Qn::TraceLevel& io = Qn::Trace::registerLevel("TraceTest.Io", __FILE__);
    Qn::Trace::setOptions("hide=all,show=TraceTest.Io");
    EXPECT_TRUE(Qn::Trace::isEnabled(io));
    EXPECT_FALSE(Qn::Trace::isEnabled(Qn::Trace::MainTraceLevel));
    EXPECT_FALSE(Qn::Trace::registerLevel("TraceTest.Later", __FILE__).isEnabled());

    Qn::Trace::setOptions("show=all,hide=TraceTest.Io");
    EXPECT_TRUE(Qn::Trace::MainTraceLevel.isEnabled());
    EXPECT_FALSE(io.isEnabled());
    EXPECT_TRUE(Qn::Trace::registerLevel("TraceTest.AfterShowAll", __FILE__).isEnabled());
    EXPECT_TRUE(Qn::Trace::registerLevel("TraceTest.Later", __FILE__).isEnabled());

    // "all" is matched exactly; show and hide without a value do nothing.
    Qn::Trace::setOptions("reset,show=allx,show,hide");
    EXPECT_TRUE(Qn::TraceOptions::getInstance().findOrCreateLevel("allx").isEnabled());
    EXPECT_FALSE(Qn::Trace::registerLevel("TraceTest.AfterReset", __FILE__).isEnabled());
    EXPECT_EQ(options().getAllLevels(), Qn::TraceOptions::AllLevelsAsMade);
}

TEST_F(TraceTest, FileNameFieldOptions) {
    const std::pair<const char*, int> widths[] = {
        {"fnwidth=-5", 20}, {"fnwidth=7", 7}, {"fnwidth=0", 0}, {"fnwidth", 20}, {"fnwidth=x", 0},
    };
    for (const auto& [text, width] : widths) {
        SCOPED_TRACE(text);
        Qn::Trace::setOptions("reset");
        Qn::Trace::setOptions(text);
        EXPECT_EQ(options().getFnWidth(), width);
    }
    const std::pair<const char*, int> dirs[] = {
        {"fndirs=-1", 0}, {"fndirs=3", 3}, {"fndirs", 0}, {"fndirs=2,fndirs=1", 1}};
    for (const auto& [text, count] : dirs) {
        SCOPED_TRACE(text);
        Qn::Trace::setOptions("reset");
        Qn::Trace::setOptions(text);
        EXPECT_EQ(options().getFnDirs(), count);
    }

    struct Row {
        int dirs;
        const char* path;
        const char* shown;
    };
    const Row rows[] = {
        {0, "a/b/c/file.cpp", "file.cpp"},
        {1, "a/b/c/file.cpp", "c/file.cpp"},
        {3, "a/b/c/file.cpp", "a/b/c/file.cpp"},
        {9, "a/b/c/file.cpp", "a/b/c/file.cpp"},
        {0, "/file.cpp", "file.cpp"},
        {1, "/file.cpp", "/file.cpp"},
        {1, "a\\b\\c\\file.cpp", "a\\b\\c\\file.cpp"},
        {0, "file.cpp", "file.cpp"},
        {0, "dir/", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        Qn::Trace::setOptions(("fndirs=" + std::to_string(row.dirs)).c_str());
        EXPECT_STREQ(options().shortenFileName(row.path), row.shown);
    }
}

TEST_F(TraceTest, LinePrefix) {
    // Without indentation at depth 0: nothing but the text's "| ".
    EXPECT_EQ(prefixAt(0), "| ");
    // Depth 4: one blank, then a blank, "|" and a blank; then "| ".
    EXPECT_EQ(prefixAt(4), "  | | ");
    EXPECT_EQ(prefixAt(6), "  | | | ");

    Qn::Trace::setOptions("line,fndirs=1");
    EXPECT_EQ(prefixAt(0, "a/b/c/file.cpp", 42), "c/file.cpp           (  42) | ");
    Qn::Trace::setOptions("fnwidth=4");
    EXPECT_EQ(prefixAt(0, "a/b/c/file.cpp", 12345), "c/fi (12345) | ");
    EXPECT_EQ(prefixAt(0, nullptr, 1), "     (   1) | ");
    Qn::Trace::setOptions("noindent");
    EXPECT_EQ(prefixAt(4, "x.cpp", 3), "x.cp (   3) ");

    Qn::Trace::setOptions("reset,pid");
    const std::string pid = Qn::TraceOptions::getInstance().getPidText();
    ASSERT_FALSE(pid.empty());
    EXPECT_EQ(prefixAt(0), pid + std::string(10 - pid.size(), ' ') + "| ");

    // The tracer's own prefix comes after the pid and before the file name.
    Qn::Trace::setOptions("line,fnwidth=5");
    TaggedTrace tagged;
    std::ostringstream out;
    tagged.print(out, "t.cpp", 9, "%d %s", 5, "items");
    EXPECT_EQ(out.str(), pid + std::string(10 - pid.size(), ' ') + "[tag] t.cpp (   9) | 5 items");
    Qn::Trace::setOptions("noprefix,nopid,noline");
    out.str("");
    tagged.log(out, "t.cpp", 9) << "text";
    EXPECT_EQ(out.str(), "| text");
}

TEST_F(TraceTest, EnterAndLeaveLines) {
    Collector collector;
    Qn::Trace tracer;
    Qn::TraceLevel& hidden = Qn::Trace::registerLevel("TraceTest.Hidden", __FILE__);
    {
        QN_TRACE_SCOPE(tracer, Qn::Trace::MainTraceLevel);
        {
            Qn::Trace::Entry inner(tracer, Qn::Trace::MainTraceLevel, "inner", "f.cpp", 2);
            Qn::Trace::Entry skipped(tracer, hidden, "skipped", "f.cpp", 3);
            EXPECT_EQ(tracer.getDepth(), 4);
            std::ostringstream text;
            tracer.log(text, "f.cpp", 4) << "inside";
            collector.print(text.str().c_str());
        }
        EXPECT_EQ(tracer.getDepth(), 2);
    }
    EXPECT_EQ(tracer.getDepth(), 0);
    const std::vector<std::string> indented = {"+ TestBody", "  + inner", "  | | inside", "  | /",
                                               "  /"};
    EXPECT_EQ(collector.lines, indented);

    collector.lines.clear();
    Qn::Trace::setOptions("noindent");
    {
        Qn::Trace::Entry outer(tracer, Qn::Trace::MainTraceLevel, "outer", "f.cpp", 1);
        Qn::Trace::Entry inner(tracer, Qn::Trace::MainTraceLevel, "inner", "f.cpp", 2);
        EXPECT_EQ(tracer.getDepth(), 0);
    }
    const std::vector<std::string> flat = {">>> outer", ">>> inner", "<<< inner", "<<< outer"};
    EXPECT_EQ(collector.lines, flat);

    // An entry keeps the depth balanced when the options change while it lives,
    // and one made while tracing is off stays silent when it ends.
    collector.lines.clear();
    Qn::Trace::setOptions("indent");
    {
        Qn::Trace::Entry active(tracer, Qn::Trace::MainTraceLevel, "active", "f.cpp", 1);
        Qn::Trace::setOptions("off");
        Qn::Trace::Entry inactive(tracer, Qn::Trace::MainTraceLevel, "inactive", "f.cpp", 2);
        Qn::Trace::setOptions("on,noindent");
    }
    EXPECT_EQ(tracer.getDepth(), 0);
    const std::vector<std::string> mixed = {"+ active", "/"};
    EXPECT_EQ(collector.lines, mixed);
}

TEST_F(TraceTest, ManagerPriorities) {
    Collector low(5);
    EXPECT_EQ(&Qn::TraceManager::getInstance(), &low);
    {
        Collector lower(3), equal(5);
        EXPECT_EQ(&Qn::TraceManager::getInstance(), &low);
        Collector higher(7);
        EXPECT_EQ(&Qn::TraceManager::getInstance(), &higher);
    }
    // The current manager went away: the standard-output manager takes over,
    // and the lower one made earlier stays out.
    Qn::TraceManager& fallback = Qn::TraceManager::getInstance();
    EXPECT_NE(&fallback, &low);
    EXPECT_EQ(fallback.getPriority(), 0);
    Collector above(1);
    EXPECT_EQ(&Qn::TraceManager::getInstance(), &above);
}

TEST_F(TraceTest, ExceptionLine) {
    Collector collector;
    const Qn::ExInternalError failure("src/base/x.cpp", 12, "Broken.");
    Qn::Trace::printException(failure, "y.cpp", 3);
    ASSERT_EQ(collector.lines.size(), 1u);
    const std::string& line = collector.lines[0];
    EXPECT_EQ(line.rfind("| Throwing exception [Exception Type = ", 0), 0u) << line;
    EXPECT_NE(line.find("ExInternalError, File = src/base/x.cpp, Line=12] Broken."),
              std::string::npos)
        << line;

    Qn::Trace::setOptions("line,hide=Main");
    Qn::Trace::printException(failure, "y.cpp", 3);
    ASSERT_EQ(collector.lines.size(), 2u);
    EXPECT_EQ(collector.lines[1].rfind("y.cpp                (   3) | Throwing exception ", 0), 0u);

    Qn::Trace::setOptions("hide=Exceptions");
    Qn::Trace::printException(failure, "y.cpp", 3);
    Qn::Trace::setOptions("show=Exceptions,off");
    Qn::Trace::printException(failure, "y.cpp", 3);
    EXPECT_EQ(collector.lines.size(), 2u);
}

TEST_F(TraceTest, BadOptionStrings) {
    try {
        Qn::Trace::setOptions("show=TraceTest.Bad,bogus,line");
        ADD_FAILURE() << "no error";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.getReason(), "Unknown token \"bogus\" in trace options.");
    }
    EXPECT_TRUE(Qn::Trace::registerLevel("TraceTest.Bad", nullptr).isEnabled())
        << "the options before the unknown one apply";
    EXPECT_FALSE(options().isLine()) << "the ones after it do not";

    Qn::Trace::setOptions("");
    Qn::Trace::setOptions(nullptr);
    Qn::Trace::setOptions("line,");
    EXPECT_TRUE(options().isLine());
    EXPECT_THROW(Qn::Trace::setOptions("line,,pid"), Qn::ExInternalError) << "an empty entry";

    // A long list is applied whole; a long unknown token is cut in the message.
    std::string many;
    for (int i = 0; i < 20000; ++i) many += "noline,line,";
    Qn::Trace::setOptions(many.c_str());
    const std::string huge(100000, 'z');
    try {
        Qn::Trace::setOptions(huge.c_str());
        ADD_FAILURE() << "no error";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_EQ(std::string(e.getReason()),
                  "Unknown token \"" + std::string(256, 'z') + "\" in trace options.");
    }
}

TEST_F(TraceTest, LevelTable) {
    static const char first[] = "x/y/first.cpp";
    static const char second[] = "second.cpp";
    Qn::Trace::registerLevel("TraceTest.Table", first);
    Qn::Trace::registerLevel("TraceTest.Table", second);
    Qn::Trace::setOptions("show=TraceTest.Table,fndirs=1");
    std::ostringstream out;
    Qn::Trace::printLevels(out);
    const std::string table = out.str();
    EXPECT_EQ(table.rfind("\nRegistered trace levels:\n\n", 0), 0u);
    EXPECT_EQ(table.substr(table.size() - 2), "\n\n");
    const std::string name = "TraceTest.Table";
    const std::string row = "\nX " + name + std::string(30 - name.size(), ' ') + " y/first.cpp\n" +
                            std::string(33, ' ') + "second.cpp\n";
    EXPECT_NE(table.find(row), std::string::npos) << table;
    EXPECT_NE(table.find("\nX Main" + std::string(26, ' ') + " base/trace.cpp\n"),
              std::string::npos)
        << table;
    EXPECT_LT(table.find("\nX Exceptions"), table.find("\nX Main")) << "ordered by name";
}

TEST_F(TraceTest, DemoTracesNestedCalls) {
    Collector collector;
    Qn::TraceDemo::traceNestedCalls();
    ASSERT_FALSE(collector.lines.empty());
    EXPECT_EQ(collector.lines.front(), "+ renderFrame");
    EXPECT_EQ(collector.lines.back(), "  /");
    size_t enters = 0, leaves = 0, exceptions = 0;
    for (const std::string& line : collector.lines) {
        enters += line.find("+ ") != std::string::npos;
        leaves += line.back() == '/';
        exceptions += line.find("Throwing exception") != std::string::npos;
    }
    EXPECT_EQ(enters, leaves);
    EXPECT_EQ(exceptions, 1u);
}
