// The logger end to end in one process: a configuration read from a table, a
// fixed clock, queues filled by hand and a reader, compared with the exact
// report, banners and lines.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <base/lgLog.h>
#include <base/lgMajorGroup.h>
#include <base/lgMessage.h>
#include <base/lgReader.h>
#include <support/captureStream.h>
#include <support/tempDirFixture.h>

namespace {

using Qn::LgConfig;
using Qn::LgLogger;
using Qn::LgQueue;
using Qn::LgTypes;
using Variables = std::map<std::string, std::string>;

LgConfig configOf(const Variables& variables) {
    return LgConfig::read([&variables](const char* name) -> const char* {
        const auto found = variables.find(name);
        return found == variables.end() ? nullptr : found->second.c_str();
    });
}

// Started at tick 1000 on Wed Jan 02 02:03:55 1980, at 1 GHz.
class FixedClock : public Qn::LgClock {
  public:
    static constexpr uint64_t Start = 1000;
    uint64_t timeStamp() const override { return Start; }
    double getFrequency() const override { return 1e9; }
    std::tm getLocalTime() const override {
        std::tm t{};
        t.tm_year = 80, t.tm_mday = 2, t.tm_wday = 3, t.tm_hour = 2, t.tm_min = 3, t.tm_sec = 55;
        return t;
    }
};

const FixedClock fixedClock;
const std::string startup = "===== Message Logger Startup =====\n";
const std::string stopped = "===== Message Logger Stopped =====\n";
const std::string banner = startup +
                           "===== Started on Wed Jan 02 02:03:55 1980\n\n"
                           "===== Clock Frequency: 1000000000.000000000\n";

void logText(LgQueue& q, LgTypes::Level level, const std::string& text, uint64_t ticks) {
    ASSERT_TRUE(q.reserveEntry(level, FixedClock::Start + ticks));
    q.getStream() << text.c_str();
    q.addEntry();
}

// One message per level, "message <level name>", at ticks + level.
void logEveryLevel(LgQueue& q, uint64_t ticks) {
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const auto level = static_cast<LgTypes::Level>(l);
        logText(q, level, std::string("message ") + LgTypes::getLevelName(level), ticks + l);
    }
}

// The line of a message logged at the given ticks since the start.
std::string lineOf(uint64_t ticks, uint32_t thread, const char* level, const std::string& text) {
    char prefix[64];
    std::snprintf(prefix, sizeof prefix, "%010u %010u (0x%08x) %s: ", unsigned(ticks >> 32),
                  unsigned(ticks & 0xFFFFFFFF), thread, level);
    return prefix + text + "\n";
}

// text with every "@" replaced by the next of names.
std::string fill(std::string text, const std::vector<std::string>& names) {
    size_t at = 0;
    for (const std::string& name : names) {
        at = text.find('@', at);
        text.replace(at, 1, name);
        at += name.size();
    }
    return text;
}

class LgLoggerTest : public QnTest::TempDirFixture {
  protected:
    // A file's text, read in text mode.
    std::string text(const std::string& relative) const {
        std::ifstream in(native(relative));
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    std::string nativeText(const std::string& relative) const { return native(relative).string(); }
};

// The end-to-end tests below read the other variables and the destinations
// they give.
TEST(LgConfig, ReadsTheEdgesOfTheDestinationSyntax) {
    const struct {
        const char* value;  // of QN_LOG_WARNING; null: not set
        const char* destination;
    } rows[] = {
        {nullptr, "on events.log in-dir"},
        {"", "on events.log in-dir"},
        {"+", "on append"},
        {"%+", "on echo append"},
        {"+%x", "on append %x"},
        {"--", "off"},
        {"-x", "on -x"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value ? row.value : "(not set)");
        const LgConfig::Destination d =
            configOf(row.value ? Variables{{"QN_LOG_WARNING", row.value}} : Variables{})
                .levels[LgTypes::Warning];
        const std::string seen = std::string(d.enabled ? "on" : "off") + (d.echo ? " echo" : "") +
                                 (d.append ? " append" : "") + (d.file.empty() ? "" : " ") +
                                 d.file + (d.inLogDirectory ? " in-dir" : "");
        EXPECT_EQ(seen, row.destination);
    }
    EXPECT_FALSE(configOf({{"QN_LOG_DEFAULT_LEVEL", "warning"}}).defaultLevel);
}

TEST_F(LgLoggerTest, DefaultsGoToTheLogDirectoryNamedAsThePlatformWritesThem) {
    const std::string events = (native("logs") / "events.log").string();
    const std::string profiling = (native("logs") / "prof.log").string();
    // The directory as the platform writes it, and in the library's form.
    for (const std::string& directory : {nativeText("logs"), QnTest::toQnForm(native("logs"))}) {
        SCOPED_TRACE(directory);
        QnTest::CaptureStream out(std::cout);
        {
            LgLogger logger(configOf({{"S2M_TEST_DIR", directory}}), fixedClock);
            std::ostringstream setup;
            logger.displaySetup(setup);
            EXPECT_EQ(setup.str(), fill("===== Log Setup =====\nInternal Error: @ \n"
                                        "Fatal Error: @ \nError: @ \nWarning: @ \n"
                                        "Informational: @ \nTracing: stdout, \nProfiling: @ \n"
                                        "===== End Setup =====\n",
                                        {events, events, events, events, events, profiling}));
            EXPECT_EQ(logger.getEventFileName(), events);
            EXPECT_EQ(logger.getProfilingFileName(), profiling);
            LgQueue q(0x2a);
            logger.getRegistry()->registerQueue(&q);
            logEveryLevel(q, 0x100000005);
            Qn::LgReader(logger).flushAll();
            logger.getRegistry()->deregisterQueue(&q);
        }
        std::string lines = banner;
        for (uint32_t l = 0; l <= LgTypes::Informational; ++l) {
            const char* name = LgTypes::getLevelName(static_cast<LgTypes::Level>(l));
            lines += lineOf(0x100000005 + l, 0x2a, name, std::string("message ") + name);
        }
        EXPECT_EQ(text("logs/events.log"), lines + stopped);
        EXPECT_EQ(text("logs/prof.log"),
                  banner + lineOf(0x10000000b, 0x2a, "Profiling", "message Profiling") + stopped);
        EXPECT_EQ(out.str(), lineOf(0x10000000a, 0x2a, "Tracing", "message Tracing"));
    }
}

// Through the static facade, as the "logger" package runs it.
TEST_F(LgLoggerTest, DestinationSyntaxSharedFilesAndBareLines) {
    writeFile("fatal.txt", "old\n");
    writeFile("info.txt", "old\n");
    const std::string fatal = nativeText("fatal.txt"), errors = nativeText("errors.txt"),
                      info = nativeText("info.txt");
    QnTest::CaptureStream out(std::cout);
    Qn::LgLog::init(configOf({{"S2M_TEST_DIR", nativeText("logs")},
                              {"QN_LOG_INTERNAL_ERROR", "--" + fatal},
                              {"QN_LOG_FATAL_ERROR", "+" + fatal},
                              {"QN_LOG_RECOVERABLE_ERROR", "%+" + errors},
                              {"QN_LOG_WARNING", "%"},
                              {"QN_LOG_INFORMATIONAL", info},
                              {"QN_LOG_TRACING", "%" + errors},
                              {"QN_LOG_PROFILING", "--"},
                              {"QN_LOG_DISABLE_TIMESTAMPS", ""},
                              {"QN_BLOCKING_TRACE", ""},
                              {"QN_LOG_DEFAULT_LEVEL", "Informational"},
                              {"QN_LOG_GROUPS", "Main=Error,Io=Bogus"}}),
                    fixedClock);
    Qn::LgLog::displaySetup();
    Qn::LgMajorGroup::printAll(std::cout);
    std::cout << "new group " << Qn::LgMajorGroup::getInstanceForName("New").getLogLevels()
              << " blocking " << Qn::LgLog::getBlockingTrace() << "\n";
    LgQueue q(1);
    Qn::LgLog::getRegistry()->registerQueue(&q);
    logEveryLevel(q, 0);
    Qn::LgReader().flushAll();
    Qn::LgLog::getRegistry()->deregisterQueue(&q);
    Qn::LgLog::destroy();
    Qn::LgMajorGroup::setDefaultThreshold(LgTypes::Warning);
    EXPECT_EQ(out.str(), fill("Invalid level string specified: Bogus\n===== Log Setup =====\n"
                              "Internal Error: Disabled\nFatal Error: @ [Append]\n"
                              "Error: stdout, @ [Append]\nWarning: stdout, \n"
                              "Informational: @ \nTracing: stdout, @ \nProfiling: Disabled\n"
                              "===== End Setup =====\nMajor Groups:\n"
                              "                    Main Tracing\nnew group 248 blocking 1\n"
                              "message Error\nmessage Warning\nmessage Tracing\n",
                              {fatal, errors, info, errors}));
    EXPECT_EQ(text("fatal.txt"), "old\n" + startup + "message Fatal Error\n" + stopped);
    // Error and Tracing name the same file: one sink, one banner.
    EXPECT_EQ(text("errors.txt"), startup + "message Error\nmessage Tracing\n" + stopped);
    EXPECT_EQ(text("info.txt"), startup + "message Informational\n" + stopped);
    EXPECT_FALSE(std::filesystem::exists(native("logs/events.log")));
}

// QN_LOG through the caller's queue: a disabled level evaluates nothing, and
// the statement is safe after an if without braces. LgMessage builds one
// message over several statements.
TEST_F(LgLoggerTest, QnLogAndLgMessageWriteThroughTheCallersQueue) {
    Qn::LgLog::init(configOf({{"S2M_TEST_DIR", nativeText("logs")},
                              {"QN_LOG_GROUPS", "Msg=Warning"},
                              {"QN_LOG_DISABLE_TIMESTAMPS", ""}}));
    LgQueue& q = Qn::LgLog::getQueue();
    Qn::LgLog::getRegistry()->registerQueue(&q);
    {
        const Qn::LgMinorGroup group(Qn::LgMajorGroup::getInstanceForName("Msg"), "Msg.sub");
        int evaluated = 0;
        auto operand = [&evaluated] { return ++evaluated; };
        QN_LOG(group, LgTypes::Informational) << "hidden " << operand();
        if (evaluated > 0)
            QN_LOG(group, LgTypes::Error) << "not taken";
        else
            QN_LOG(group, LgTypes::Warning) << "value " << operand() << ", " << 2.5;
        EXPECT_EQ(evaluated, 1);
        Qn::LgMessage message(LgTypes::Error);
        EXPECT_TRUE(message.isReserved());
        for (int v : {1, 2, 3}) message << v << ' ';
    }
    Qn::LgReader().flushAll();
    Qn::LgLog::getRegistry()->deregisterQueue(&q);
    Qn::LgLog::destroy();
    EXPECT_EQ(text("logs/events.log"), startup + "value 1, 2.500000\n1 2 3 \n" + stopped);
}

TEST_F(LgLoggerTest, UnusableLogDirectoryDropsTheDefaultFiles) {
    writeFile("file", "in the way\n");
    LgLogger logger(configOf({{"S2M_TEST_DIR", nativeText("file/logs")}}), fixedClock);
    std::ostringstream setup;
    logger.displaySetup(setup);
    EXPECT_EQ(setup.str(),
              "===== Log Setup =====\nInternal Error: Disabled\nFatal Error: \nError: \n"
              "Warning: \nInformational: \nTracing: stdout, \nProfiling: Disabled\n"
              "===== End Setup =====\n");
    EXPECT_EQ(logger.getEventFileName(), nullptr);
    EXPECT_EQ(logger.getLevelOutput(LgTypes::Warning), nullptr);
}

// A registry of the host's own, which the reader reads through getQueueList.
class ListRegistry : public Qn::LgRegistry {
  public:
    void registerQueue(LgQueue* queue) override { queues.push_back(queue); }
    void deregisterQueue(LgQueue* queue) override { queues.remove(queue); }
    Qn::List<LgQueue*> getQueueList() override { return queues; }
    Qn::List<LgQueue*> queues;
};

// Merges by time stamp, ties in registration order; counts the overflow;
// destroys a queue whose producer has exited, through the logger's registry or
// through one that replaced it.
TEST_F(LgLoggerTest, ReaderMergesByStampTiesInListOrderAndCountsOverflow) {
    const std::string lock =
        "qn-lgtest/" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
    LgLogger logger(configOf({{"S2M_TEST_DIR", nativeText("logs")},
                              {"QN_INTERNAL_INTERPROCESS_LOG_LOCK", lock}}),
                    fixedClock);
    LgQueue a(0xa), b(0xb), c(0x2a);
    auto* exited = new LgQueue(0xe);
    for (LgQueue* q : {&a, exited, &b, &c}) logger.getRegistry()->registerQueue(q);
    exited->creatorExit();
    const uint64_t t = 0x100000005;
    logText(b, LgTypes::Warning, "b at t", t);
    logText(a, LgTypes::Warning, "a at t", t);
    logText(b, LgTypes::Warning, "b at t+1", t + 1);
    logText(a, LgTypes::Warning, "a at t+2", t + 2);
    const uint32_t kept = LgQueue::getMaxSize() - 1;
    for (uint32_t i = 0; i < kept; ++i) logText(c, LgTypes::Error, "c", t + 3);
    for (int lost = 0; lost < 3; ++lost) {
        EXPECT_FALSE(c.reserveEntry(LgTypes::Error, FixedClock::Start + t + 3));
    }
    Qn::LgReader reader(logger);
    EXPECT_TRUE(reader.eventsPending());
    ASSERT_TRUE(reader.flushEarliest());
    // With an inter-process lock every line reaches the file at once.
    EXPECT_EQ(text("logs/events.log"), banner + lineOf(t, 0xa, "Warning", "a at t"));
    reader.flushAll();
    EXPECT_FALSE(reader.eventsPending());
    EXPECT_EQ(logger.getRegistry()->getQueueList(), (Qn::List<LgQueue*>{&a, &b, &c}));

    const auto own = std::make_shared<ListRegistry>();
    exited = new LgQueue(0xe);
    logger.getRegistry()->registerQueue(exited);
    EXPECT_TRUE(logger.setRegistry(own)->getQueueList().empty());
    EXPECT_EQ(own->queues, (Qn::List<LgQueue*>{&a, &b, &c, exited}));
    exited->creatorExit();
    logText(a, LgTypes::Warning, "a through the host's registry", t + 9);
    reader.flushAll();
    EXPECT_EQ(own->queues, (Qn::List<LgQueue*>{&a, &b, &c}));
    EXPECT_EQ(logger.setRegistry(nullptr), own);
    EXPECT_EQ(own->queues.size(), 3u);  // nothing to carry over to
    EXPECT_FALSE(reader.flushEarliest());
    logger.close();

    std::string expected =
        banner + lineOf(t, 0xa, "Warning", "a at t") + lineOf(t, 0xb, "Warning", "b at t") +
        lineOf(t + 1, 0xb, "Warning", "b at t+1") + lineOf(t + 2, 0xa, "Warning", "a at t+2");
    for (uint32_t i = 0; i < kept; ++i) expected += lineOf(t + 3, 0x2a, "Error", "c");
    EXPECT_EQ(text("logs/events.log"),
              expected + lineOf(t + 3, 0x2a, "Informational", "Event overflow [3]") +
                  lineOf(t + 9, 0xa, "Warning", "a through the host's registry") + stopped);
}

}  // namespace
