// The leak detector's known-leak filter and its exception.
#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <memory>
#include <string>

#include <base/hmGC.h>
#include <base/hmGCEx.h>

namespace {

struct TestGC : Qn::HmGC {
    // The filter for a stack given as frame texts, innermost first.
    bool isReal(std::initializer_list<const char*> stack, const char* knownLeaks) const {
        auto frames = std::make_unique<Qn::ArrayPtr<char>[]>(stack.size() + 1);
        size_t i = 0;
        for (const char* text : stack) {
            frames[i].reset(new char[std::strlen(text) + 1]);
            std::strcpy(frames[i++].get(), text);
        }
        return isLeakValid(frames.get(), knownLeaks);
    }
};

}  // namespace

TEST(HmGC, KnownLeakFilter) {
    const TestGC gc;
    const char* const list = "KNOWNLEAK a b ENDL";
    struct Row {
        std::initializer_list<const char*> stack;
        const char* knownLeaks;
        bool real;
    };
    const Row rows[] = {
        {{"a", "b"}, list, false},
        {{"a", "b", "main"}, list, false},  // further outer frames do not matter
        {{"a", "c"}, list, true},
        {{"a"}, list, true},  // the stack ends before the entry does
        {{"a", "b"}, "a b ENDL", true},
        {{"a", "b"}, nullptr, true},
        {{"x"}, "KNOWNLEAK a ENDL KNOWNLEAK x ENDL", false},  // a later entry applies
        {{"x"}, "KNOWNLEAK x", true},                         // no ENDL
        {{"x"}, "KNOWNLEAK x ", true},                        // no ENDL after the blank
        {{"x", "y"}, "KNOWNLEAK x", true},
        {{"fn"}, "KNOWNLEAK fn+0x12 ENDL", false},  // a token starting with the frame matches
        {{"a"}, "KNOWNLEAK ENDL", false},           // an empty entry matches every stack
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.knownLeaks ? row.knownLeaks : "(null)");
        EXPECT_EQ(gc.isReal(row.stack, row.knownLeaks), row.real);
    }
}

TEST(HmGC, NoDebuggingHeapAndTheGarbageException) {
    EXPECT_FALSE(Qn::HmGC::isMemDebugLoaded());

    const Qn::HmGCEx::ExGarbageDetected garbage("hmGC.cpp", 12);
    EXPECT_STREQ(garbage.what(), "Garbage Collector has detected leaks.");
    const std::unique_ptr<Qn::ExBase> copy(garbage.clone());
    EXPECT_NE(dynamic_cast<Qn::HmGCEx::ExGarbageDetected*>(copy.get()), nullptr);
    EXPECT_STREQ(copy->getReason(), garbage.getReason());
    EXPECT_EQ(copy->getLineNo(), 12);
    EXPECT_EQ(dynamic_cast<const std::exception*>(copy.get()), nullptr)
        << "not a standard exception";
}
