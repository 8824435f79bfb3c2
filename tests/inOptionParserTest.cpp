#include <base/inOptionParser.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// Runs the parser over words and renders what it yields: "t=4 v ?x" and so on.
std::string parse(const std::vector<std::string>& words, const char* letters) {
    Qn::InOptionParser parser(words, letters);
    std::string result;
    for (int c; (c = parser.next()) != -1;) {
        if (!result.empty()) result += ' ';
        if (c == '?' || c == ':')
            result += std::string(1, static_cast<char>(c)) + static_cast<char>(parser.getOption());
        else
            result += static_cast<char>(c);
        if (parser.getArgument()) result += std::string("=") + parser.getArgument();
    }
    return result;
}

}  // namespace

TEST(InOptionParser, GetoptRules) {
    struct Case {
        std::vector<std::string> words;
        const char* letters;
        const char* expected;
    };
    const Case cases[] = {
        {{"prog", "-t", "4"}, "t:", "t=4"},
        {{"prog", "-t4"}, "t:", "t=4"},
        {{"prog", "-vt", "4"}, "vt:", "v t=4"},
        {{"prog", "-vx"}, "v", "v ?x"},
        {{"prog", "-t"}, "t:", "?t"},
        {{"prog", "-t"}, ":t:", ":t"},
        {{"prog", "file", "-t", "4", "other"}, "t:", "t=4"},
        {{"prog", "-v", "--", "-t", "4"}, "vt:", "v"},
        {{"prog", "-", "-v"}, "v", "v"},
        {{"prog", "-t", "-v"}, "t:v", "t=-v"},
        {{"-v"}, "v", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.expected);
        EXPECT_EQ(parse(c.words, c.letters), c.expected);
    }
}

TEST(InOptionParser, EndIsSticky) {
    const std::vector<std::string> words{"prog", "--", "-v"};
    Qn::InOptionParser parser(words, "v");
    EXPECT_EQ(parser.next(), -1);
    EXPECT_EQ(parser.next(), -1);
    EXPECT_EQ(parser.getIndex(), 2u);
}

TEST(InOptionParser, SubOptions) {
    const char* const tokens[] = {"show", "hide", "on", nullptr};
    char text[] = "show=Main,on,bogus=1,hide=,,on";
    char* options = text;
    char* value = nullptr;
    EXPECT_EQ(Qn::InOptionParser::getSubOption(&options, tokens, &value), 0);
    EXPECT_STREQ(value, "Main");
    EXPECT_EQ(Qn::InOptionParser::getSubOption(&options, tokens, &value), 2);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(Qn::InOptionParser::getSubOption(&options, tokens, &value), -1);
    EXPECT_STREQ(value, "bogus=1");
    EXPECT_EQ(Qn::InOptionParser::getSubOption(&options, tokens, &value), 1);
    EXPECT_STREQ(value, "");
    EXPECT_EQ(Qn::InOptionParser::getSubOption(&options, tokens, &value), -1) << "empty entry";
    EXPECT_STREQ(value, "");
    EXPECT_EQ(Qn::InOptionParser::getSubOption(&options, tokens, &value), 2);
    EXPECT_EQ(Qn::InOptionParser::getSubOption(&options, tokens, &value), -1);
    EXPECT_EQ(value, nullptr) << "end of the list";
}
