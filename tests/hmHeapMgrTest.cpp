// The heap manager's configuration from its environment variables, its setters
// and the texts of the default implementation.
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include <base/hmHeapMgr.h>
#include <base/hmSystemHeapMgr.h>
#include <support/platform.h>

namespace {

// The variables the manager under test sees.
std::map<std::string, std::string> environment;

const char* fakeEnvironment(const char* name) {
    const auto found = environment.find(name);
    return found == environment.end() ? nullptr : found->second.c_str();
}

struct TestHeapMgr : Qn::HmHeapMgr {
    TestHeapMgr() : HmHeapMgr(&fakeEnvironment) {}
};

// A manager made with one variable set.
std::unique_ptr<Qn::HmHeapMgr> madeWith(const char* name, const char* value) {
    environment = {{name, value}};
    auto manager = std::make_unique<TestHeapMgr>();
    environment.clear();
    return manager;
}

std::string row(const char* name, const char* value) {
    return std::string(name) + "=\"" + value + "\"";
}

}  // namespace

TEST(HmHeapMgr, DefaultsWithoutVariables) {
    environment.clear();
    const TestHeapMgr manager;
    EXPECT_EQ(manager.getSafetyLevel(), Qn::HmHeapMgr::SafetyFull);
    EXPECT_FALSE(manager.isOutput2Prompt());
    EXPECT_FALSE(manager.isContinueOnError());
    EXPECT_FALSE(manager.isUseDefaultErrorHandler());
    EXPECT_FALSE(manager.isDumpHeapInfo());
    EXPECT_FALSE(manager.isCheckAllMemory());
    EXPECT_FALSE(manager.isDumpLeaks());
    EXPECT_FALSE(manager.isDoDeferFreeing()) << "the built-in 'on' must not show";
    EXPECT_EQ(manager.getDeferQueueLen(), 1000u);
    EXPECT_EQ(manager.getDeferSizeThreshold(), 4096u);
    EXPECT_EQ(manager.getCheckFrequency(), 1000u);
}

TEST(HmHeapMgr, SafetyLevelMatchesExactly) {
    const std::pair<const char*, Qn::HmHeapMgr::SafetyLevel> rows[] = {
        {"some", Qn::HmHeapMgr::SafetySome},   {"full", Qn::HmHeapMgr::SafetyFull},
        {"debug", Qn::HmHeapMgr::SafetyDebug}, {"Debug", Qn::HmHeapMgr::SafetyFull},
        {"debug ", Qn::HmHeapMgr::SafetyFull}, {" some", Qn::HmHeapMgr::SafetyFull},
        {"", Qn::HmHeapMgr::SafetyFull},       {"2", Qn::HmHeapMgr::SafetyFull},
    };
    for (const auto& [value, expected] : rows) {
        SCOPED_TRACE(row("QN_HEAP_SAFETY_LEVEL", value));
        EXPECT_EQ(madeWith("QN_HEAP_SAFETY_LEVEL", value)->getSafetyLevel(), expected);
    }
}

TEST(HmHeapMgr, FlagsAreTrueFromOne) {
    using Getter = bool (Qn::HmHeapMgr::*)() const;
    const std::pair<const char*, Getter> variables[] = {
        {"QN_HEAP_OUTPUT_PROMPT", &Qn::HmHeapMgr::isOutput2Prompt},
        {"QN_HEAP_CONTINUE_ON_UNRECOVERABLE_ERROR", &Qn::HmHeapMgr::isContinueOnError},
        {"QN_HEAP_USE_DEFAULT_ERROR_HANDLER", &Qn::HmHeapMgr::isUseDefaultErrorHandler},
        {"QN_HEAP_DUMP_INFO", &Qn::HmHeapMgr::isDumpHeapInfo},
        {"QN_HEAP_CHECK_MEMORY", &Qn::HmHeapMgr::isCheckAllMemory},
        {"QN_HEAP_DUMP_LEAKS", &Qn::HmHeapMgr::isDumpLeaks},
        {"QN_HEAP_DO_DEFER_FREEING", &Qn::HmHeapMgr::isDoDeferFreeing},
    };
    const std::pair<const char*, bool> values[] = {
        {"1", true},   {"2", true}, {"10", true},   {" 3", true},    {"1x", true},  {"0", false},
        {"-1", false}, {"", false}, {"yes", false}, {"true", false}, {"x1", false},
    };
    for (const auto& [name, getter] : variables)
        for (const auto& [value, expected] : values) {
            SCOPED_TRACE(row(name, value));
            EXPECT_EQ((*madeWith(name, value).*getter)(), expected);
        }
}

TEST(HmHeapMgr, SizesAreTakenAsIs) {
    using Getter = unsigned int (Qn::HmHeapMgr::*)() const;
    const std::pair<const char*, Getter> variables[] = {
        {"QN_HEAP_DEFER_QUEUE_LEN", &Qn::HmHeapMgr::getDeferQueueLen},
        {"QN_HEAP_DEFER_SIZE_THRESHOLD", &Qn::HmHeapMgr::getDeferSizeThreshold},
        {"QN_HEAP_CHECK_FREQUENCY", &Qn::HmHeapMgr::getCheckFrequency},
    };
    const std::pair<const char*, unsigned int> values[] = {
        {"7", 7u},    {"", 0u},  {"abc", 0u},         {" 12", 12u},
        {"12 ", 12u}, {"0", 0u}, {"-1", 4294967295u}, {"2147483647", 2147483647u},
    };
    for (const auto& [name, getter] : variables)
        for (const auto& [value, expected] : values) {
            SCOPED_TRACE(row(name, value));
            EXPECT_EQ((*madeWith(name, value).*getter)(), expected);
        }
}

TEST(HmHeapMgr, SettersReturnThePreviousValue) {
    environment.clear();
    TestHeapMgr manager;
    EXPECT_EQ(manager.setCheckFrequency(5), 1000u);
    EXPECT_EQ(manager.getCheckFrequency(), 5u);
    EXPECT_EQ(manager.setCheckFrequency(6), 5u);

    EXPECT_EQ(manager.setSafetyLevel(Qn::HmHeapMgr::SafetyDebug), Qn::HmHeapMgr::SafetyFull);
    EXPECT_EQ(manager.setSafetyLevel(Qn::HmHeapMgr::SafetySome), Qn::HmHeapMgr::SafetyDebug);
    EXPECT_EQ(manager.getSafetyLevel(), Qn::HmHeapMgr::SafetySome);

    using Setter = bool (Qn::HmHeapMgr::*)(bool);
    using Getter = bool (Qn::HmHeapMgr::*)() const;
    const std::pair<Setter, Getter> flags[] = {
        {&Qn::HmHeapMgr::setContinueOnError, &Qn::HmHeapMgr::isContinueOnError},
        {&Qn::HmHeapMgr::setUseDefaultHandler, &Qn::HmHeapMgr::isUseDefaultErrorHandler},
        {&Qn::HmHeapMgr::setDumpHeapInfo, &Qn::HmHeapMgr::isDumpHeapInfo},
        {&Qn::HmHeapMgr::setCheckAllMemory, &Qn::HmHeapMgr::isCheckAllMemory},
        {&Qn::HmHeapMgr::setDumpLeaks, &Qn::HmHeapMgr::isDumpLeaks},
        {&Qn::HmHeapMgr::setDoDeferFreeing, &Qn::HmHeapMgr::isDoDeferFreeing},
    };
    for (const auto& [set, get] : flags) {
        EXPECT_FALSE((manager.*set)(true));
        EXPECT_TRUE((manager.*get)());
        EXPECT_TRUE((manager.*set)(false));
        EXPECT_FALSE((manager.*get)());
    }
    // Each setter changes its own field only.
    EXPECT_EQ(manager.setDeferQueueLen(10), 1000ul);
    EXPECT_EQ(manager.setDeferSizeThreshold(20), 4096ul);
    EXPECT_EQ(manager.getDeferQueueLen(), 10u);
    EXPECT_EQ(manager.getDeferSizeThreshold(), 20u);
    EXPECT_EQ(manager.getCheckFrequency(), 6u);
    manager.setDeferQueueLen(std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(manager.getDeferQueueLen(), 4294967295u) << "kept in 32 bits";
}

TEST(HmHeapMgr, DefaultImplementationChecksNothing) {
    environment.clear();
    TestHeapMgr manager;
    EXPECT_TRUE(manager.isValid(nullptr, 16, Qn::HmHeapMgr::PtrAny));
    EXPECT_EQ(manager.setCheckPoint(7), 0u);

    std::ostringstream heap, stats, pointer;
    manager.dump(heap);
    manager.dumpMallocStats(stats);
    manager.dumpPtrInfo(&manager, pointer);
    EXPECT_EQ(heap.str(),
              "*************** Default (compiler's) heap manager ***************\n"
              "*****************************************************************\n");
    EXPECT_EQ(stats.str(), "Malloc stats not available with compiler's heap\n");
    EXPECT_EQ(pointer.str(), "Ptr info not available with compiler's heap\n");
}

TEST(HmSystemHeapMgr, ReportsTheAllocatorsStatistics) {
    const Qn::HmSystemHeapMgr manager;
    std::ostringstream stats;
    manager.dumpMallocStats(stats);
    const std::string text = stats.str();
    EXPECT_EQ(text.rfind("Malloc stats of ", 0), 0u) << text;
    EXPECT_NE(text.find("\n  bytes in use: "), std::string::npos) << text;
    if (QnTest::onWindows) {
        EXPECT_NE(text.find("walk: complete\n"), std::string::npos) << text;
    }
}
