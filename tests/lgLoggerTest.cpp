// The logger end to end in one process: a configuration read from a table, a
// fixed clock, queues filled by hand and a reader, compared with the exact
// report, banners and lines.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <base/lgLog.h>
#include <base/lgMajorGroup.h>
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

// The line of a message logged at the given ticks since the start.
std::string lineOf(uint64_t ticks, uint32_t thread, const char* level, const std::string& text) {
    char prefix[64];
    std::snprintf(prefix, sizeof prefix, "%010u %010u (0x%08x) %s: ", unsigned(ticks >> 32),
                  unsigned(ticks & 0xFFFFFFFF), thread, level);
    return prefix + text + "\n";
}

const char* levelName(uint32_t l) { return LgTypes::getLevelName(static_cast<LgTypes::Level>(l)); }

class LgLoggerTest : public QnTest::TempDirFixture {
  protected:
    // A file's text, read in text mode.
    std::string text(const std::string& relative) const {
        std::ifstream in(native(relative));
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    std::string nativeText(const std::string& relative) const { return native(relative).string(); }
};

std::string describe(const LgConfig::Destination& d) {
    std::string out = d.enabled ? "on" : "off";
    if (d.echo) out += " echo";
    if (d.append) out += " append";
    if (!d.file.empty()) out += " file " + d.file;
    if (d.inLogDirectory) out += " in-dir";
    if (d.needsLogDirectory) out += " needs-dir";
    return out;
}

TEST(LgConfig, ReadsDestinationsAndSettings) {
    const struct {
        const char* value;  // of QN_LOG_WARNING; null: not set
        const char* destination;
    } rows[] = {
        {nullptr, "on file events.log in-dir"},
        {"", "on file events.log in-dir"},
        {"--x.log", "off"},
        {"%", "on echo"},
        {"+", "on append"},
        {"+x.log", "on append file x.log"},
        {"%+trace.txt", "on echo append file trace.txt"},
        {"%x", "on echo file x"},
        {"+%x", "on append file %x"},
        {"plain.log", "on file plain.log"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value ? row.value : "(not set)");
        const LgConfig config =
            configOf(row.value ? Variables{{"QN_LOG_WARNING", row.value}} : Variables{});
        EXPECT_EQ(describe(config.levels[LgTypes::Warning]), row.destination);
    }
    const LgConfig defaults = configOf({});
    EXPECT_EQ(describe(defaults.levels[LgTypes::InternalError]),
              "on file events.log in-dir needs-dir");
    EXPECT_EQ(describe(defaults.levels[LgTypes::Tracing]), "on echo");
    EXPECT_EQ(describe(defaults.levels[LgTypes::Profiling]), "on file prof.log in-dir needs-dir");
    EXPECT_TRUE(defaults.logDirectory.empty() && !defaults.defaultLevel && !defaults.groups &&
                !defaults.lockName && !defaults.blockingTrace && defaults.timeStamps);

    const LgConfig set = configOf({{"S2M_TEST_DIR", "d"},
                                   {"QN_LOG_DEFAULT_LEVEL", "Fatal Error"},
                                   {"QN_LOG_GROUPS", "Io=Error"},
                                   {"QN_BLOCKING_TRACE", ""},
                                   {"QN_INTERNAL_INTERPROCESS_LOG_LOCK", "lock"},
                                   {"QN_LOG_DISABLE_TIMESTAMPS", ""}});
    EXPECT_EQ(set.logDirectory, "d");
    EXPECT_EQ(set.defaultLevel, LgTypes::FatalError);
    EXPECT_EQ(set.groups, "Io=Error");
    EXPECT_EQ(set.lockName, "lock");
    EXPECT_TRUE(set.blockingTrace && !set.timeStamps);
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
            EXPECT_EQ(setup.str(), "===== Log Setup =====\nInternal Error: " + events +
                                       " \nFatal Error: " + events + " \nError: " + events +
                                       " \nWarning: " + events + " \nInformational: " + events +
                                       " \nTracing: stdout, \nProfiling: " + profiling +
                                       " \n===== End Setup =====\n");
            EXPECT_EQ(logger.getEventFileName(), events);
            EXPECT_EQ(logger.getProfilingFileName(), profiling);
            LgQueue q(0x2a);
            logger.getRegistry()->registerQueue(&q);
            for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
                logText(q, LgTypes::Level(l), std::string("message ") + levelName(l),
                        0x100000005 + l);
            }
            Qn::LgReader(logger).flushAll();
            logger.getRegistry()->deregisterQueue(&q);
        }
        std::string eventLines;
        for (uint32_t l = 0; l <= LgTypes::Informational; ++l) {
            eventLines +=
                lineOf(0x100000005 + l, 0x2a, levelName(l), std::string("message ") + levelName(l));
        }
        EXPECT_EQ(text("logs/events.log"), banner + eventLines + stopped);
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
                              {"QN_LOG_DISABLE_TIMESTAMPS", "1"},
                              {"QN_BLOCKING_TRACE", "1"},
                              {"QN_LOG_DEFAULT_LEVEL", "Informational"},
                              {"QN_LOG_GROUPS", "Main=Error,Io=Bogus"}}),
                    fixedClock);
    Qn::LgLog::displaySetup();
    Qn::LgMajorGroup::printAll(std::cout);
    std::cout << "new group " << Qn::LgMajorGroup::getInstanceForName("New").getLogLevels()
              << " blocking " << Qn::LgLog::getBlockingTrace() << "\n";
    LgQueue q(1);
    Qn::LgLog::getRegistry()->registerQueue(&q);
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        logText(q, LgTypes::Level(l), std::string("message ") + levelName(l), l);
    }
    Qn::LgReader().flushAll();
    Qn::LgLog::getRegistry()->deregisterQueue(&q);
    Qn::LgLog::destroy();
    Qn::LgMajorGroup::setDefaultThreshold(LgTypes::Warning);
    EXPECT_EQ(out.str(),
              "Invalid level string specified: Bogus\n"
              "===== Log Setup =====\n"
              "Internal Error: Disabled\n"
              "Fatal Error: " +
                  fatal +
                  " [Append]\n"
                  "Error: stdout, " +
                  errors +
                  " [Append]\n"
                  "Warning: stdout, \n"
                  "Informational: " +
                  info +
                  " \n"
                  "Tracing: stdout, " +
                  errors +
                  " \n"
                  "Profiling: Disabled\n"
                  "===== End Setup =====\n"
                  "Major Groups:\n"
                  "                    Main Tracing\n"
                  "new group 248 blocking 1\n"
                  "message Error\nmessage Warning\nmessage Tracing\n");
    EXPECT_EQ(text("fatal.txt"), "old\n" + startup + "message Fatal Error\n" + stopped);
    // Error and Tracing name the same file: one sink, one banner.
    EXPECT_EQ(text("errors.txt"), startup + "message Error\nmessage Tracing\n" + stopped);
    EXPECT_EQ(text("info.txt"), startup + "message Informational\n" + stopped);
    EXPECT_FALSE(std::filesystem::exists(native("logs/events.log")));
    EXPECT_FALSE(Qn::LgLog::isInitialized());
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

TEST_F(LgLoggerTest, ReaderMergesByStampTiesInListOrderAndCountsOverflow) {
    const std::string lock =
        "qn-lgtest/" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
    LgLogger logger(configOf({{"S2M_TEST_DIR", nativeText("logs")},
                              {"QN_INTERNAL_INTERPROCESS_LOG_LOCK", lock}}),
                    fixedClock);
    ASSERT_NE(logger.getInterProcessLock(), nullptr);
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
    for (LgQueue* q : {&a, &b, &c}) logger.getRegistry()->deregisterQueue(q);
    logger.close();

    std::istringstream in(text("logs/events.log"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line + "\n");
    ASSERT_EQ(lines.size(), 4 + 4 + kept + 1 + 1);
    EXPECT_EQ(lines[5], lineOf(t, 0xb, "Warning", "b at t"));
    EXPECT_EQ(lines[6], lineOf(t + 1, 0xb, "Warning", "b at t+1"));
    EXPECT_EQ(lines[7], lineOf(t + 2, 0xa, "Warning", "a at t+2"));
    EXPECT_EQ(lines[8], lineOf(t + 3, 0x2a, "Error", "c"));
    EXPECT_EQ(lines[8 + kept], lineOf(t + 3, 0x2a, "Informational", "Event overflow [3]"));
    EXPECT_EQ(lines.back(), stopped);
}

// A registry of the host's own, read through getQueueList.
class ListRegistry : public Qn::LgRegistry {
  public:
    void registerQueue(LgQueue* queue) override { queues.push_back(queue); }
    void deregisterQueue(LgQueue* queue) override { queues.remove(queue); }
    Qn::List<LgQueue*> getQueueList() override { return queues; }
    Qn::List<LgQueue*> queues;
};

TEST_F(LgLoggerTest, ReplacedRegistryTakesTheQueuesAndServesTheReader) {
    LgLogger logger(configOf({{"S2M_TEST_DIR", nativeText("logs")}}), fixedClock);
    LgQueue a(1);
    auto* exited = new LgQueue(2);
    logger.getRegistry()->registerQueue(&a);
    logger.getRegistry()->registerQueue(exited);
    const auto own = std::make_shared<ListRegistry>();
    const auto first = logger.setRegistry(own);
    EXPECT_TRUE(first->getQueueList().empty());
    EXPECT_EQ(own->queues, (Qn::List<LgQueue*>{&a, exited}));
    logText(a, LgTypes::Warning, "through my registry", 7);
    exited->creatorExit();
    Qn::LgReader reader(logger);
    reader.flushAll();
    EXPECT_EQ(own->queues, Qn::List<LgQueue*>{&a});
    EXPECT_EQ(logger.setRegistry(nullptr), own);
    EXPECT_EQ(own->queues.size(), 1u);  // nothing to carry over to
    EXPECT_FALSE(reader.flushEarliest());
    logger.close();
    EXPECT_EQ(text("logs/events.log"),
              banner + lineOf(7, 1, "Warning", "through my registry") + stopped);
}

}  // namespace
