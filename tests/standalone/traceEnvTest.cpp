// Trace options from QN_TRACE_OPTIONS (see traceEnvTest.env), write protection
// and the level table before the first prefix of the process.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <base/exInternalError.h>
#include <base/osProcess.h>
#include <base/trace.h>
#include <base/traceManager.h>
#include <base/traceOptions.h>
#include <support/traceCollector.h>

namespace {

Qn::TraceLevel& io = Qn::Trace::registerLevel("Io", __FILE__);

using Collector = QnTest::TraceCollector;

}  // namespace

TEST(Trace, EnvironmentOptionsAndWriteProtection) {
    const Qn::TraceOptions& options = Qn::TraceOptions::getInstance();
    EXPECT_TRUE(Qn::Trace::isEnabled(io));
    EXPECT_FALSE(Qn::Trace::isEnabled(Qn::Trace::MainTraceLevel));
    EXPECT_FALSE(Qn::Trace::registerLevel("Later", __FILE__).isEnabled());
    EXPECT_TRUE(options.isWriteProtected());

    Qn::Trace::setOptions("reset,off,on,show=Main,hide=Io,noline,nopid,fndirs=0,noprefix");
    EXPECT_TRUE(options.isOn());
    EXPECT_TRUE(io.isEnabled());
    EXPECT_FALSE(Qn::Trace::MainTraceLevel.isEnabled());
    EXPECT_TRUE(options.isLine() && options.isPid() && options.isPrefix());
    EXPECT_EQ(options.getFnDirs(), 1);
    EXPECT_THROW(Qn::Trace::setOptions("bogus"), Qn::ExInternalError);
    EXPECT_FALSE(options.isPrintLevels());
    Qn::Trace::setOptions("printlevels");
    EXPECT_TRUE(options.isPrintLevels());

    // The first prefix of the process starts with the level table.
    Collector collector;
    Qn::Trace tracer;
    { QN_TRACE_SCOPE(tracer, io); }
    ASSERT_EQ(collector.lines.size(), 2u);
    const std::string pid = std::to_string(Qn::OsProcess::getCurrentId());
    const std::string prefix = pid + std::string(10 - pid.size(), ' ') + "standalone/traceEnvT (";
    const std::string table = "\nRegistered trace levels:\n\n";
    const std::string& enter = collector.lines[0];
    EXPECT_EQ(enter.rfind(table, 0), 0u) << enter;
    EXPECT_NE(enter.find("\nX Io" + std::string(28, ' ') + " standalone/traceEnvTest.cpp\n"),
              std::string::npos)
        << enter;
    EXPECT_NE(enter.find("\n  Main "), std::string::npos) << enter;
    EXPECT_NE(enter.find("\n\n" + prefix), std::string::npos) << enter;
    EXPECT_EQ(enter.substr(enter.size() - 12), ") + TestBody");
    EXPECT_EQ(collector.lines[1].rfind(prefix, 0), 0u) << "no table the second time";
}
