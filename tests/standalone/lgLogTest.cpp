// Several processes share one log file under the inter-process lock while the
// lock's first holder dies holding it. Each process is this program started
// again as "lgLogTest role <name>", with the logger configured through the
// environment that the test sets.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include <base/lgInterProcessLock.h>
#include <base/lgLog.h>
#include <base/lgMajorGroup.h>
#include <base/lgMessage.h>
#include <base/lgReaderThread.h>
#include <base/lgThreadQueues.h>
#include <support/childProcess.h>
#include <support/scopedEnv.h>
#include <support/tempDirFixture.h>

namespace {

const char* selfPath = nullptr;
constexpr int Lines = 300;

// Logs "w<k> <i>" lines padded with 80 "x" while the reader thread writes
// them into the shared file.
int writerRole(int k) {
    Qn::LgLog::init();
    Qn::LgThreadQueues::install();
    Qn::LgReaderThread reader;
    reader.start();
    static const Qn::LgMinorGroup group(Qn::LgMajorGroup::getInstanceForName("Test"), "Test");
    const std::string padding(80, 'x');
    for (int i = 0; i < Lines; ++i) {
        QN_LOG(group, Qn::LgTypes::Warning) << 'w' << k << ' ' << i << padding.c_str();
    }
    reader.stop();
    Qn::LgLog::destroy();
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

class LgLogTest : public QnTest::TempDirFixture {
  protected:
    void setEnv(const char* name, const std::string& value) {
        _env.push_back(std::make_unique<QnTest::ScopedEnv>(name, value.c_str()));
    }
    static QnTest::ChildResult runRole(const std::string& role) {
        return QnTest::runChild(std::string(selfPath) + " role " + role);
    }

  private:
    std::vector<std::unique_ptr<QnTest::ScopedEnv>> _env;
};

TEST_F(LgLogTest, ProcessesSharingTheLockWriteWholeLinesAndSurviveADeadHolder) {
    const std::string shared = "+" + native("shared.log").string();
    for (const char* level :
         {"QN_LOG_INTERNAL_ERROR", "QN_LOG_FATAL_ERROR", "QN_LOG_RECOVERABLE_ERROR",
          "QN_LOG_WARNING", "QN_LOG_INFORMATIONAL"}) {
        setEnv(level, shared);
    }
    setEnv("QN_LOG_PROFILING", "--");
    setEnv("QN_LOG_DISABLE_TIMESTAMPS", "1");
    setEnv("S2M_TEST_DIR", native("logs").string());
    setEnv(
        "QN_INTERNAL_INTERPROCESS_LOG_LOCK",
        "qn-lgtest/" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
    setEnv("QN_LGTEST_MARKER", native("marker").string());

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
            [w, &results] { results[w] = runRole("writer " + std::to_string(w)); });
    }
    for (std::thread& writer : writers) writer.join();
    holder.join();
    for (const QnTest::ChildResult& result : results) EXPECT_EQ(result.status, 0) << result.output;

    // Every line whole, each writer's lines complete and in order.
    static const std::regex message(R"(w(\d) (\d+)x{80})");
    std::map<int, int> next;
    int startups = 0, stops = 0;
    std::ifstream in(native("shared.log"));
    for (std::string line; std::getline(in, line);) {
        std::smatch m;
        if (line == "===== Message Logger Startup =====") {
            ++startups;
        } else if (line == "===== Message Logger Stopped =====") {
            ++stops;
        } else if (std::regex_match(line, m, message)) {
            const int w = std::stoi(m[1].str());
            EXPECT_EQ(std::stoi(m[2].str()), next[w]++) << line;
        } else {
            ADD_FAILURE() << "broken line: " << line;
        }
    }
    EXPECT_EQ(next.size(), size_t(Writers));
    for (const auto& [w, count] : next) EXPECT_EQ(count, Lines) << w;
    EXPECT_EQ(startups, Writers);
    EXPECT_EQ(stops, Writers);
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
        if (std::strcmp(argv[2], "holder") == 0) return holderRole();
        return writerRole(argc >= 4 ? std::atoi(argv[3]) : 0);
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
