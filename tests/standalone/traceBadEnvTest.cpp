// An unknown keyword in QN_TRACE_OPTIONS (see traceBadEnvTest.env): levels still
// register from static initialisers, and the first trace operation raises the
// error once.
#include <gtest/gtest.h>

#include <base/exInternalError.h>
#include <base/trace.h>
#include <base/traceOptions.h>

namespace {

Qn::TraceLevel& io = Qn::Trace::registerLevel("Io", __FILE__);

}  // namespace

TEST(Trace, UnknownKeywordInTheEnvironment) {
    try {
        Qn::Trace::isEnabled(io);
        ADD_FAILURE() << "no error";
    } catch (const Qn::ExInternalError& e) {
        EXPECT_STREQ(e.getReason(), "Unknown token \"bogus\" in trace options.");
    }
    EXPECT_TRUE(Qn::Trace::isEnabled(io)) << "the options before it apply";
    EXPECT_FALSE(Qn::TraceOptions::getInstance().isLine()) << "the ones after it do not";
}
