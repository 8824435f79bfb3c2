// The message logger end to end. The logger reads its configuration once from
// the environment at start-up, so each scenario runs in a child: this program
// started again as "lgLogTest role <name>", with the environment the test sets.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <mutex>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <base/hwCounter.h>
#include <base/lgInterProcessLock.h>
#include <base/lgLog.h>
#include <base/lgMajorGroup.h>
#include <base/lgMessage.h>
#include <base/lgReader.h>
#include <base/lgReaderThread.h>
#include <base/lgSimpleRegistry.h>
#include <base/lgThreadQueues.h>
#include <base/osFilePath.h>
#include <support/childProcess.h>
#include <support/scopedEnv.h>
#include <support/tempDirFixture.h>

namespace {

using Qn::LgLog;
using Qn::LgQueue;
using Qn::LgTypes;

const char* selfPath = nullptr;

// ---------------------------------------------------------------------------
// Children

void logText(LgQueue& q, LgTypes::Level level, const std::string& text, uint64_t stamp) {
    if (q.reserveEntry(level, stamp)) {
        q << text.c_str();
        q.addEntry();
    }
}

// The setup report, the groups, then one message per level through a queue.
int reportRole() {
    LgLog::init();
    LgLog::displaySetup();
    Qn::LgMajorGroup::printAll(std::cout);
    std::cout << "new group " << Qn::LgMajorGroup::getInstanceForName("New").getLogLevels()
              << " blocking " << LgLog::getBlockingTrace() << " lock "
              << (LgLog::getInterProcessLock() != nullptr) << "\n";
    LgQueue& q = LgLog::getQueue();
    LgLog::getRegistry()->registerQueue(&q);
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const auto level = static_cast<LgTypes::Level>(l);
        logText(q, level, std::string("message ") + LgTypes::getLevelName(level),
                Qn::HwCounter::timeStamp());
    }
    Qn::LgReader().flushAll();
    LgLog::getRegistry()->deregisterQueue(&q);
    LgLog::destroy();
    return 0;
}

// Entries of equal stamps in two queues, and an overflow entry of count 3.
int mergeRole() {
    LgLog::init();
    LgQueue a(0xa), b(0xb), c(0x2a);
    for (LgQueue* q : {&a, &b, &c}) LgLog::getRegistry()->registerQueue(q);
    const uint64_t t = LgLog::getStart() + 0x100000005ull;
    logText(b, LgTypes::Warning, "b at t", t);
    logText(a, LgTypes::Warning, "a at t", t);
    logText(b, LgTypes::Warning, "b at t+1", t + 1);
    logText(a, LgTypes::Warning, "a at t+2", t + 2);
    for (uint32_t i = 0; i < LgQueue::getMaxSize() + 2; ++i) logText(c, LgTypes::Error, "c", t + 3);
    Qn::LgReader reader;
    std::cout << "pending " << reader.eventsPending() << "\n";
    reader.flushAll();
    std::cout << "pending " << reader.eventsPending() << "\n";
    for (LgQueue* q : {&a, &b, &c}) LgLog::getRegistry()->deregisterQueue(q);
    LgLog::destroy();
    return 0;
}

// A reader that pauses every 64 lines, so that the producers overflow.
void slowReader(const std::atomic<bool>& stop) {
    Qn::LgReader reader;
    for (int n = 1; !stop.load(); ++n) {
        if (!reader.flushEarliest()) std::this_thread::yield();
        if (n % 64 == 0) std::this_thread::sleep_for(std::chrono::microseconds(300));
    }
    reader.flushAll();
}

// Waits until every producer has arrived (std::latch loses wake-ups with some
// runtimes).
class Gate {
  public:
    explicit Gate(int count) : _left(count) {}
    void arriveAndWait() {
        std::unique_lock<std::mutex> hold(_mutex);
        if (--_left == 0) _open.notify_all();
        _open.wait(hold, [this] { return _left == 0; });
    }

  private:
    std::mutex _mutex;
    std::condition_variable _open;
    int _left;
};

struct Variant {
    int producers;
    int messages;
    size_t padding;
    int readerIdleMicroseconds;
    bool slowReader;
};

Variant variantNamed(const std::string& name) {
    if (name == "slow") return {4, 20000, 0, 1000, true};
    if (name == "shutdown") return {3, 300, 0, 10000000, false};  // the reader sleeps
    if (name == "writer") return {2, 300, 80, 1000, false};
    return {4, 20000, 0, 1000, false};
}

// Producers on threads of their own, each through its own queue, each writing
// "p<k> <i>" lines with k counted from first; prints each producer's thread id.
// The producers live until all are done, so their thread ids are distinct.
int threadsRole(const std::string& name, int first) {
    const Variant variant = variantNamed(name);
    LgLog::init();
    Qn::LgReaderThread reader(variant.readerIdleMicroseconds);
    Qn::LgThreadQueues::install(reader.getObserver());
    static const Qn::LgMinorGroup group(Qn::LgMajorGroup::getInstanceForName("Test"), "Test");
    std::atomic<bool> stop{false};
    std::thread slow;
    if (variant.slowReader) {
        slow = std::thread(slowReader, std::cref(stop));
    } else {
        reader.start();
    }
    const std::string padding(variant.padding, 'x');
    std::vector<unsigned long> threadIds(variant.producers);
    Gate done(variant.producers);
    std::vector<std::thread> producers;
    for (int k = 0; k < variant.producers; ++k) {
        producers.emplace_back([k, first, &variant, &padding, &threadIds, &done] {
            threadIds[k] = LgLog::getQueue().getThreadId();
            for (int i = 0; i < variant.messages; ++i) {
                QN_LOG(group, LgTypes::Warning) << 'p' << first + k << ' ' << i << padding.c_str();
            }
            done.arriveAndWait();
            Qn::LgThreadQueues::releaseQueue();
        });
    }
    for (std::thread& producer : producers) producer.join();
    stop = true;
    if (slow.joinable()) slow.join();
    reader.stop();
    std::cout << "queues left " << LgLog::getRegistry()->getQueueList().size() << "\n";
    LgLog::destroy();
    for (int k = 0; k < variant.producers; ++k) {
        std::cout << "producer " << first + k << " thread " << threadIds[k] << "\n";
    }
    return 0;
}

// Takes the inter-process lock, says so with a marker file, and dies holding it.
int holderRole() {
    auto lock = Qn::LgInterProcessLock::create(std::getenv("QN_INTERNAL_INTERPROCESS_LOG_LOCK"));
    lock->lock();
    std::ofstream(std::getenv("QN_LGTEST_MARKER")) << "locked\n";
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
#if defined(SIGKILL)
    std::raise(SIGKILL);
#endif
    std::_Exit(3);
}

// ---------------------------------------------------------------------------
// Tests

const char* const loggerVariables[] = {
    "S2M_TEST_DIR",
    "QN_LOG_INTERNAL_ERROR",
    "QN_LOG_FATAL_ERROR",
    "QN_LOG_RECOVERABLE_ERROR",
    "QN_LOG_WARNING",
    "QN_LOG_INFORMATIONAL",
    "QN_LOG_TRACING",
    "QN_LOG_PROFILING",
    "QN_LOG_DEFAULT_LEVEL",
    "QN_LOG_GROUPS",
    "QN_LOG_DISABLE_TIMESTAMPS",
    "QN_BLOCKING_TRACE",
    "QN_INTERNAL_INTERPROCESS_LOG_LOCK",
};

const std::string prefixPattern = R"(\d{10} \d{10} \(0x[0-9a-f]{8}\) )";

class LgLogTest : public QnTest::TempDirFixture {
  protected:
    void SetUp() override {
        TempDirFixture::SetUp();
        for (const char* name : loggerVariables) setEnv(name, nullptr);
    }

    void setEnv(const char* name, const char* value) {
        _env.push_back(std::make_unique<QnTest::ScopedEnv>(name, value));
    }
    void setEnv(const char* name, const std::string& value) { setEnv(name, value.c_str()); }

    static QnTest::ChildResult runRole(const std::string& role) {
        return QnTest::runChild(std::string(selfPath) + " role " + role);
    }

    // The lines of a file, read in text mode.
    std::vector<std::string> lines(const std::string& relative) const {
        std::ifstream in(native(relative));
        std::vector<std::string> out;
        for (std::string line; std::getline(in, line);) out.push_back(line);
        return out;
    }
    std::string nativeText(const std::string& relative) const { return native(relative).string(); }

  private:
    std::vector<std::unique_ptr<QnTest::ScopedEnv>> _env;
};

std::string joined(const std::vector<std::string>& lines) {
    std::string out;
    for (const std::string& line : lines) out += line + "\n";
    return out;
}

void expectBanner(const std::vector<std::string>& lines) {
    ASSERT_GE(lines.size(), 4u);
    EXPECT_EQ(lines[0], "===== Message Logger Startup =====");
    EXPECT_TRUE(std::regex_match(
        lines[1], std::regex(R"(===== Started on \w{3} \w{3} \d\d \d\d:\d\d:\d\d \d{4})")))
        << lines[1];
    EXPECT_EQ(lines[2], "");
    EXPECT_TRUE(std::regex_match(lines[3], std::regex(R"(===== Clock Frequency: \d+\.\d{9})")))
        << lines[3];
}

TEST_F(LgLogTest, DefaultsWriteEventsAndProfilingFilesInTheLogDirectory) {
    const std::string directory = nativeText("logs/a/b");
    setEnv("S2M_TEST_DIR", directory);
    setEnv("QN_LOG_DEFAULT_LEVEL", "warning");  // not a level name: ignored
    const QnTest::ChildResult child = runRole("report");
    ASSERT_EQ(child.status, 0) << child.output;
    const std::string events = (Qn::OsFilePath(directory.c_str()) + "events.log").getText();
    const std::string profiling = (Qn::OsFilePath(directory.c_str()) + "prof.log").getText();
    const std::string report =
        "===== Log Setup =====\n"
        "Internal Error: " +
        events +
        " \n"
        "Fatal Error: " +
        events +
        " \n"
        "Error: " +
        events +
        " \n"
        "Warning: " +
        events +
        " \n"
        "Informational: " +
        events +
        " \n"
        "Tracing: stdout, \n"
        "Profiling: " +
        profiling +
        " \n"
        "===== End Setup =====\n"
        "Major Groups:\n"
        "new group 240 blocking 0 lock 0\n";
    ASSERT_EQ(child.output.substr(0, report.size()), report);
    EXPECT_TRUE(std::regex_match(child.output.substr(report.size()),
                                 std::regex(prefixPattern + "Tracing: message Tracing\n")))
        << child.output;

    const std::vector<std::string> eventLines = lines("logs/a/b/events.log");
    expectBanner(eventLines);
    ASSERT_EQ(eventLines.size(), 10u) << joined(eventLines);
    for (uint32_t l = 0; l <= LgTypes::Informational; ++l) {
        const std::string name = LgTypes::getLevelName(static_cast<LgTypes::Level>(l));
        EXPECT_TRUE(std::regex_match(eventLines[4 + l],
                                     std::regex(prefixPattern + name + ": message " + name)))
            << eventLines[4 + l];
    }
    EXPECT_EQ(eventLines[9], "===== Message Logger Stopped =====");
    const std::vector<std::string> profilingLines = lines("logs/a/b/prof.log");
    expectBanner(profilingLines);
    ASSERT_EQ(profilingLines.size(), 6u) << joined(profilingLines);
    EXPECT_TRUE(std::regex_match(profilingLines[4],
                                 std::regex(prefixPattern + "Profiling: message Profiling")));
}

TEST_F(LgLogTest, DestinationSyntaxAndDisabledTimeStamps) {
    writeFile("fatal.txt", "old\n");
    writeFile("info.txt", "old\n");
    const std::string fatal = nativeText("fatal.txt"), errors = nativeText("errors.txt"),
                      info = nativeText("info.txt");
    setEnv("S2M_TEST_DIR", nativeText("logs"));
    setEnv("QN_LOG_INTERNAL_ERROR", "--" + fatal);
    setEnv("QN_LOG_FATAL_ERROR", "+" + fatal);
    setEnv("QN_LOG_RECOVERABLE_ERROR", "%+" + errors);
    setEnv("QN_LOG_WARNING", "%");
    setEnv("QN_LOG_INFORMATIONAL", info);
    setEnv("QN_LOG_TRACING", "%" + errors);
    setEnv("QN_LOG_PROFILING", "--");
    setEnv("QN_LOG_DISABLE_TIMESTAMPS", "1");
    setEnv("QN_BLOCKING_TRACE", "1");
    setEnv("QN_LOG_DEFAULT_LEVEL", "Informational");
    setEnv("QN_LOG_GROUPS", "Main=Error,Io=Bogus");
    const QnTest::ChildResult child = runRole("report");
    ASSERT_EQ(child.status, 0) << child.output;
    EXPECT_EQ(child.output,
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
                  "new group 248 blocking 1 lock 0\n"
                  "message Error\n"
                  "message Warning\n"
                  "message Tracing\n");
    const std::string start = "===== Message Logger Startup =====\n";
    const std::string stop = "===== Message Logger Stopped =====\n";
    EXPECT_EQ(joined(lines("fatal.txt")), "old\n" + start + "message Fatal Error\n" + stop);
    // Error and Tracing name the same file: one stream, one banner.
    EXPECT_EQ(joined(lines("errors.txt")), start + "message Error\nmessage Tracing\n" + stop);
    EXPECT_EQ(joined(lines("info.txt")), start + "message Informational\n" + stop);
    EXPECT_FALSE(std::filesystem::exists(native("logs/events.log")));
}

TEST_F(LgLogTest, MergesQueuesByStampWithTiesInListOrderAndCountsOverflow) {
    setEnv("S2M_TEST_DIR", nativeText("logs"));
    const QnTest::ChildResult child = runRole("merge");
    ASSERT_EQ(child.status, 0) << child.output;
    EXPECT_EQ(child.output, "pending 1\npending 0\n");
    const std::vector<std::string> eventLines = lines("logs/events.log");
    expectBanner(eventLines);
    const uint32_t lost = 3, kept = LgQueue::getMaxSize() - 1;
    ASSERT_EQ(eventLines.size(), 4 + 4 + kept + 1 + 1u);
    EXPECT_EQ(eventLines[4], "0000000001 0000000005 (0x0000000a) Warning: a at t");
    EXPECT_EQ(eventLines[5], "0000000001 0000000005 (0x0000000b) Warning: b at t");
    EXPECT_EQ(eventLines[6], "0000000001 0000000006 (0x0000000b) Warning: b at t+1");
    EXPECT_EQ(eventLines[7], "0000000001 0000000007 (0x0000000a) Warning: a at t+2");
    EXPECT_EQ(eventLines[8], "0000000001 0000000008 (0x0000002a) Error: c");
    EXPECT_EQ(eventLines[8 + kept],
              "0000000001 0000000008 (0x0000002a) Informational: Event overflow [" +
                  std::to_string(lost) + "]");
}

// Per producer: its lines in order plus its overflow counts.
struct ProducerLines {
    uint64_t lines = 0;
    uint64_t lost = 0;
    bool ordered = true;
};

// Reads "producer <k> thread <id>" from a child's output and counts the lines of
// each producer in a log: "p<k> <i>..." texts, and the overflow entries of its
// thread. Every line must be a banner line or one of those.
std::map<int, ProducerLines> countProducerLines(const std::string& outputs,
                                                const std::vector<std::string>& log) {
    std::map<unsigned long, int> producerOfThread;
    std::istringstream in(outputs);
    for (std::string word; in >> word;) {
        if (word != "producer") continue;
        int k;
        unsigned long id;
        in >> k >> word >> id;
        producerOfThread[id] = k;
    }
    static const std::regex message(
        R"(\d{10} \d{10} \(0x([0-9a-f]{8})\) )"
        R"((Warning: p(\d+) (\d+)(?:x{80})?|Informational: Event overflow \[(\d+)\]))");
    static const std::regex banner(
        R"(===== (Message Logger (Startup|Stopped) =====|Started on .{24}|Clock Frequency: .*)|)");
    std::map<int, ProducerLines> counts;
    std::map<int, long long> last;
    for (const std::string& line : log) {
        std::smatch m;
        if (!std::regex_match(line, m, message)) {
            EXPECT_TRUE(std::regex_match(line, banner)) << "broken line: " << line;
            continue;
        }
        if (m[5].matched) {
            const auto id = std::stoul(m[1].str(), nullptr, 16);
            EXPECT_EQ(producerOfThread.count(id), 1u) << line;
            counts[producerOfThread[id]].lost += std::stoull(m[5].str());
            continue;
        }
        const int k = std::stoi(m[3].str());
        const long long i = std::stoll(m[4].str());
        ProducerLines& count = counts[k];
        count.ordered = count.ordered && i > (last.count(k) ? last[k] : -1);
        last[k] = i;
        ++count.lines;
    }
    return counts;
}

TEST_F(LgLogTest, ProducersThroughTheirOwnQueuesLoseNothing) {
    setEnv("S2M_TEST_DIR", nativeText("logs"));
    for (const char* variant : {"fast", "slow"}) {
        SCOPED_TRACE(variant);
        const QnTest::ChildResult child = runRole(variant);
        ASSERT_EQ(child.status, 0) << child.output;
        EXPECT_EQ(child.output.rfind("queues left 0\n", 0), 0u) << child.output;
        const auto counts = countProducerLines(child.output, lines("logs/events.log"));
        ASSERT_EQ(counts.size(), 4u);
        uint64_t lost = 0;
        for (const auto& [k, count] : counts) {
            SCOPED_TRACE(k);
            EXPECT_EQ(count.lines + count.lost, 20000u);
            EXPECT_TRUE(count.ordered);
            lost += count.lost;
        }
        if (std::string(variant) == "slow") {
            EXPECT_GT(lost, 0u);
        }
    }
}

TEST_F(LgLogTest, StoppingTheReaderDrainsEveryCommittedEntry) {
    setEnv("S2M_TEST_DIR", nativeText("logs"));
    // The reader sleeps ten seconds between looks; stop() must wake it and
    // let it write everything first.
    const QnTest::ChildResult child = runRole("shutdown");
    ASSERT_EQ(child.status, 0) << child.output;
    EXPECT_EQ(child.output.rfind("queues left 0\n", 0), 0u) << child.output;
    const auto counts = countProducerLines(child.output, lines("logs/events.log"));
    ASSERT_EQ(counts.size(), 3u);
    for (const auto& [k, count] : counts) {
        EXPECT_EQ(count.lines, 300u) << k;
        EXPECT_EQ(count.lost, 0u) << k;
    }
}

TEST_F(LgLogTest, ProcessesSharingTheLockWriteWholeLinesAndSurviveADeadHolder) {
    const std::string shared = "+" + nativeText("shared.log");
    for (const char* level :
         {"QN_LOG_INTERNAL_ERROR", "QN_LOG_FATAL_ERROR", "QN_LOG_RECOVERABLE_ERROR",
          "QN_LOG_WARNING", "QN_LOG_INFORMATIONAL"}) {
        setEnv(level, shared);
    }
    setEnv("QN_LOG_PROFILING", "--");
    setEnv("S2M_TEST_DIR", nativeText("logs"));
    setEnv(
        "QN_INTERNAL_INTERPROCESS_LOG_LOCK",
        "qn-lgtest/" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
    setEnv("QN_LGTEST_MARKER", nativeText("marker"));

    std::thread holder([] { runRole("holder"); });
    for (int i = 0; i < 2000 && !std::filesystem::exists(native("marker")); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ASSERT_TRUE(std::filesystem::exists(native("marker")));
    constexpr int Writers = 4;
    std::vector<QnTest::ChildResult> results(Writers);
    std::vector<std::thread> writers;
    for (int w = 0; w < Writers; ++w) {
        writers.emplace_back(
            [w, &results] { results[w] = runRole("writer " + std::to_string(10 * w)); });
    }
    for (std::thread& writer : writers) writer.join();
    holder.join();
    std::string outputs;
    for (const QnTest::ChildResult& result : results) {
        EXPECT_EQ(result.status, 0) << result.output;
        outputs += result.output;
    }
    const std::vector<std::string> log = lines("shared.log");
    const auto counts = countProducerLines(outputs, log);
    EXPECT_EQ(counts.size(), 2u * Writers);
    for (const auto& [k, count] : counts) {
        EXPECT_EQ(count.lines, 300u) << k;
        EXPECT_TRUE(count.ordered) << k;
    }
    EXPECT_EQ(std::count(log.begin(), log.end(), "===== Message Logger Startup ====="), Writers);
    EXPECT_EQ(std::count(log.begin(), log.end(), "===== Message Logger Stopped ====="), Writers);
}

class CountingRegistry : public Qn::LgSimpleRegistry {
  public:
    void deregisterQueue(LgQueue* queue) override {
        ++deregistered;
        LgSimpleRegistry::deregisterQueue(queue);
    }
    int deregistered = 0;
};

TEST(LgLogRegistry, ReplacingTheRegistryCarriesTheQueuesOver) {
    LgQueue a(1), b(2);
    const auto first = std::make_shared<CountingRegistry>();
    first->registerQueue(&a);
    first->registerQueue(&b);
    const auto original = LgLog::setRegistry(first);
    const auto second = std::make_shared<Qn::LgSimpleRegistry>();
    EXPECT_EQ(LgLog::setRegistry(second), first);
    EXPECT_EQ(second->getQueueList(), (Qn::List<LgQueue*>{&a, &b}));
    EXPECT_TRUE(first->getQueueList().empty());
    EXPECT_EQ(first->deregistered, 2);
    EXPECT_EQ(LgLog::getRegistry(), second);
    LgLog::setRegistry(nullptr);
    EXPECT_EQ(second->getQueueList().size(), 2u);  // nothing to carry over to
    LgLog::setRegistry(original);
}

}  // namespace

int main(int argc, char** argv) {
#if defined(_WIN32)
    // The full path of the program, whatever form started it.
    selfPath = _pgmptr;
#else
    selfPath = argv[0];
#endif
    if (argc >= 3 && std::strcmp(argv[1], "role") == 0) {
        const std::string role = argv[2];
        if (role == "report") return reportRole();
        if (role == "merge") return mergeRole();
        if (role == "holder") return holderRole();
        return threadsRole(role, argc >= 4 ? std::atoi(argv[3]) : 0);
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
