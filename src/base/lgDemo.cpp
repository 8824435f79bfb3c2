#include <base/lgDemo.h>

#include <algorithm>
#include <iostream>
#include <thread>
#include <vector>

#include <base/assertions.h>
#include <base/hwCounter.h>
#include <base/lgMessage.h>
#include <base/lgReaderThread.h>
#include <base/lgThreadQueues.h>
#include <base/osFilePath.h>
#include <base/osFileReader.h>

namespace Qn {

namespace {

constexpr int Steps = 4;

void work(const LgMinorGroup& group, int worker) {
    const uint64_t start = HwCounter::timeStamp();
    for (int step = 1; step <= Steps; ++step) {
        QN_LOG(group, LgTypes::Informational)
            << "worker " << worker << ": step " << step << " of " << Steps;
    }
    if (worker % 2 == 1) QN_LOG(group, LgTypes::Warning) << "worker " << worker << ": odd one out";
    QN_LOG(group, LgTypes::Profiling)
        << "worker " << worker << ": " << HwCounter::seconds(start, HwCounter::timeStamp()) * 1e6
        << " us";
}

// Where a log file is, and how many lines it holds now.
void describe(const char* what, const char* fileName) {
    if (!fileName) {
        std::cout << what << ": none\n";
        return;
    }
    OsFileReader reader(fileName);
    reader.open();
    char block[4096];
    int lines = 0;
    while (const size_t size = reader.read(block, sizeof block)) {
        lines += static_cast<int>(std::count(block, block + size, '\n'));
    }
    std::cout << what << ": " << fileName << " (" << lines << " lines so far)\n";
}

}  // namespace

void LgDemo::logFromThreads(int threads) {
    QN_ASSERT(threads >= 1);
    const bool ownLogger = !LgLog::isInitialized();
    if (ownLogger) LgLog::init();
    LgReaderThread reader;
    LgThreadQueues::install(reader.getObserver());
    reader.start();
    LgLog::displaySetup();

    LgMajorGroup& major = LgMajorGroup::getInstanceForName("Demo");
    major.setLogThreshold(LgTypes::Informational, false);
    major.setLogThreshold(LgTypes::Profiling, false);
    const LgMinorGroup group(major, "Demo.worker");
    std::vector<std::thread> workers;
    for (int worker = 0; worker < threads; ++worker) {
        workers.emplace_back(work, std::cref(group), worker);
    }
    for (std::thread& worker : workers) worker.join();
    reader.stop();

    std::cout << threads << " threads logged through queues of their own\n";
    describe("events", LgLog::getEventFileName());
    describe("profiling", LgLog::getProfilingFileName());
    if (ownLogger) LgLog::destroy();
}

}  // namespace Qn
