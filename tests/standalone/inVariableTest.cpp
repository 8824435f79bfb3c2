// Configuration variables fed by the four sources: precedence, ties,
// conversions, overrides and the errors of misuse.
#include <gtest/gtest.h>

#include <base/inBasePackages.h>
#include <base/inContextAlias.h>
#include <base/inEnv.h>
#include <base/inEx.h>
#include <base/inInitMgr.h>
#include <base/inVariable.h>
#include <support/captureStream.h>

namespace QnInit {
class config;
}

namespace {

Qn::InInit<QnInit::config> configPackage("config", Qn::InPackageDeps<QnInit::initArg>{});

const Qn::InDefAlias def10("10", "default ten");
const Qn::InEnvAlias envUnset("QN_TEST_UNSET", "unset variable");
const Qn::InEnvAlias envTwenty("QN_TEST_TWENTY", "variable of twenty");
const Qn::InArgAlias argN("n", "option n");
const Qn::InArgAlias argM("m", "option m");
const Qn::InOvrAlias ovr40("40", "built-in override");

Qn::InVariable<int> fromDefault("t.default", configPackage, envUnset, def10);
Qn::InVariable<int> fromEnv("t.env", configPackage, def10, envTwenty);
Qn::InVariable<int> fromArg("t.arg", configPackage, def10, envTwenty, argN);
Qn::InVariable<int> fromOvr("t.ovr", configPackage, argN, ovr40, envTwenty);
Qn::InVariable<int> pending("t.pending", configPackage, argN, def10);
Qn::InVariable<int> none("t.none", configPackage, envUnset);

// Equal priorities: the alias given first wins.
const Qn::InDefAlias defFirst("first", "first default");
const Qn::InDefAlias defSecond("second", "second default");
Qn::InVariable<const char*> tie("t.tie", configPackage, defFirst, defSecond);

// Conversions.
const Qn::InDefAlias text12abc("12abc", "12abc");
const Qn::InDefAlias textAbc("abc", "abc");
const Qn::InDefAlias textFalse("FALSE", "FALSE");
const Qn::InDefAlias textNo("no", "no");
const Qn::InDefAlias textEmpty("", "empty");
const Qn::InDefAlias textZero("0", "zero");
Qn::InVariable<int> int12abc("c.int12abc", configPackage, text12abc);
Qn::InVariable<int> intAbc("c.intAbc", configPackage, textAbc);
Qn::InVariable<bool> boolFalse("c.boolFalse", configPackage, textFalse);
Qn::InVariable<bool> boolNo("c.boolNo", configPackage, textNo);
Qn::InVariable<bool> boolEmpty("c.boolEmpty", configPackage, textEmpty);
Qn::InVariable<bool> boolZero("c.boolZero", configPackage, textZero);

}  // namespace

TEST(InVariable, SourcesPrecedenceConversionsAndOverrides) {
    // Before initialisation: nothing to read, aliases not initialised.
    EXPECT_THROW(fromDefault.getValue(), Qn::InEx::ExUninitializedObject);
    EXPECT_THROW(envUnset.getValue(), Qn::InEx::ExUninitializedObject);
    EXPECT_THROW(Qn::InDefAlias("10", "same key"), Qn::InEx::ExContextAliasAlreadyDefined);
    EXPECT_THROW(Qn::InVariable<int>("t.env", configPackage), Qn::InEx::ExHandleAlreadyInUse);

    Qn::InVariableBase::overrideViaHandle("t.pending", "50", "test override");
    Qn::InVariableBase::overrideViaHandle("t.unused", "60", "never used");
    EXPECT_TRUE(Qn::InVariableBase::isOverridden("t.pending"));
    EXPECT_EQ(Qn::InVariableBase::queryViaHandle("t.env"), &fromEnv);
    EXPECT_EQ(Qn::InVariableBase::queryViaHandle("t.nothing"), nullptr);

    const char* argvStorage[] = {"host", "operand", "-n", "30", "-z"};
    const char* const* argv = argvStorage;
    int argc = 5;
    Qn::InInitMgr::getInstance().initialize(argc, argv);

    EXPECT_EQ(fromDefault.getValue(), 10);
    EXPECT_EQ(fromEnv.getValue(), 20);
    EXPECT_EQ(fromArg.getValue(), 30);
    EXPECT_STREQ(fromArg.initSource(), "Qn::InContextAlias<Qn::InInitArg, 1>");
    EXPECT_EQ(fromOvr.getValue(), 40);
    EXPECT_EQ(pending.getValue(), 50) << "a pending override beats the command line";
    EXPECT_FALSE(Qn::InVariableBase::isOverridden("t.pending"));
    EXPECT_FALSE(none.isValid());
    try {
        none.getValue();
        FAIL() << "no exception";
    } catch (const Qn::InEx::ExUninitializedObject& e) {
        EXPECT_STREQ(e.getReason(),
                     "Trying to access an object that is not fully initialized: 't.none'.");
        EXPECT_STREQ(e.getFileName(), "inVariable");
        EXPECT_EQ(e.getLineNo(), 48);
    }
    EXPECT_STREQ(tie.getValue(), "first");

    EXPECT_EQ(int12abc.getValue(), 12);
    EXPECT_EQ(intAbc.getValue(), 0);
    EXPECT_FALSE(boolFalse.getValue());
    EXPECT_FALSE(boolZero.getValue());
    EXPECT_TRUE(boolNo.getValue());
    EXPECT_TRUE(boolEmpty.getValue());

    // The aliases themselves.
    EXPECT_TRUE(envTwenty.isValid());
    try {
        envUnset.getValue();
        FAIL() << "no exception";
    } catch (const Qn::InEx::ExInvalidObject& e) {
        EXPECT_STREQ(e.getReason(),
                     "Trying to access an object that has an invalid value: 'unset variable'.");
    }
    EXPECT_FALSE(argM.isValid()) << "-m was not given";

    // After the sources and the variables initialised.
    try {
        Qn::InEnvAlias late("QN_TEST_LATE", "late alias");
        FAIL() << "no exception";
    } catch (const Qn::InEx::ExNoNewContextAliasAfterInit& e) {
        EXPECT_STREQ(e.getReason(),
                     "Trying to do post initialization registration of context alias instance: "
                     "'late alias' (key: QN_TEST_LATE).");
    }
    try {
        Qn::InVariableBase::overrideViaHandle("t.env", "70", "too late");
        FAIL() << "no exception";
    } catch (const Qn::InEx::ExVariableAlreadyInitialized& e) {
        EXPECT_STREQ(e.getFileName(), "inContextAlias");
        EXPECT_EQ(e.getLineNo(), 277);
    }

    // Typed environment reading over the snapshot.
    EXPECT_EQ(Qn::InEnv::getInt("QN_TEST_TWENTY", 0), 20);
    EXPECT_EQ(Qn::InEnv::getInt("QN_TEST_UNSET", 7), 7);
    EXPECT_TRUE(Qn::InEnv::getBool("QN_TEST_TWENTY", false));
    EXPECT_STREQ(Qn::InEnv::getText("QN_TEST_UNSET", "none"), "none");

    // The unused override is reported when the manager finalises.
    QnTest::CaptureStream err(std::cerr);
    Qn::InInitMgr::getInstance().finalize();
    EXPECT_NE(err.str().find("----\nUnused override for handle: t.unused\n"
                             "     With string          : 60\n"
                             "     Described as         : never used\n----\n"),
              std::string::npos)
        << err.str();
    EXPECT_FALSE(Qn::InVariableBase::isOverridden("t.unused"));
    EXPECT_FALSE(fromArg.isValid());
}
