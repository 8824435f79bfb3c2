// qnperf group "logging": several threads log through queues of their own while
// one reader thread merges their lines into the log files.
//
//   logging <threads> <count>    threads: 1 to 4; count: messages per thread
//
// A cycle starts the producers and ends when they have all committed their
// messages; the reader drains what is left before the cycle's
// results are printed.
#include <memory>
#include <ostream>
#include <thread>
#include <vector>

#include <base/lgLog.h>
#include <base/lgMajorGroup.h>
#include <base/lgMessage.h>
#include <base/lgMinorGroup.h>
#include <base/lgReaderThread.h>
#include <base/lgThreadQueues.h>
#include <base/testGroup.h>

#include "workload.h"

namespace {

const char* const threadCounts[] = {"1", "2", "3", "4", nullptr};

class LoggingGroup : public Qn::TestGroup {
  public:
    LoggingGroup() : TestGroup("logging") {
        setDescription("messages from several threads through per-thread queues");
        setUsage("logging <1-4 threads> <messages per thread>");
    }

    void prepareCycle(int argc, const char* const* argv) override {
        _workload = QnPerf::parseWorkload(argc, argv, threadCounts, getUsage());
        if (!_group)
            _group = std::make_unique<Qn::LgMinorGroup>(
                Qn::LgMajorGroup::getInstanceForName("Perf"), "Perf");
        _reader = std::make_unique<Qn::LgReaderThread>();
        Qn::LgThreadQueues::install(_reader->getObserver());
        _reader->start();
    }

    void runCycle(int, const char* const*) override {
        const int producers = static_cast<int>(_workload.kind) + 1;
        std::vector<std::thread> threads;
        for (int t = 0; t < producers; ++t) {
            threads.emplace_back([this, t] {
                for (unsigned i = 0; i < _workload.count; ++i)
                    QN_LOG(*_group, Qn::LgTypes::Warning) << "producer " << t << " message " << i;
            });
        }
        for (std::thread& thread : threads) thread.join();
    }

    void terminate() override { _reader->stop(); }

    void printResults(std::ostream& out) override {
        out << static_cast<int>(_workload.kind) + 1 << " threads x " << _workload.count
            << " messages into " << Qn::LgLog::getEventFileName();
    }

  private:
    QnPerf::Workload _workload;
    std::unique_ptr<Qn::LgMinorGroup> _group;
    std::unique_ptr<Qn::LgReaderThread> _reader;
};

LoggingGroup loggingGroup;

}  // namespace
