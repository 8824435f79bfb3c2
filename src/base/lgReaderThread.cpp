#include <base/lgReaderThread.h>

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>

#include <base/assertions.h>
#include <base/lgLog.h>
#include <base/lgReader.h>

namespace Qn {

// Shared by the thread and the observers, which may outlive this object.
class LgReaderThread::State {
  public:
    explicit State(int idleMicroseconds) : idle(idleMicroseconds) {}

    // The thread's loop: write while there is work, sleep when there is none,
    // leave once stopping and drained.
    void run(LgLogger& logger) {
        try {
            LgReader reader(logger);
            for (;;) {
                const bool stopRequested = stopping.load(std::memory_order_acquire);
                if (reader.flushEarliest()) {
                    if (waiters.load(std::memory_order_relaxed) > 0) notifyProgress();
                    continue;
                }
                if (stopRequested) break;
                std::unique_lock<std::mutex> hold(mutex);
                wake.wait_for(hold, idle,
                              [this] { return stopping.load(std::memory_order_relaxed); });
            }
        } catch (...) {
            failure = std::current_exception();
        }
        running.store(false, std::memory_order_release);
        notifyProgress();
    }

    void requestStop() {
        {
            const std::lock_guard<std::mutex> hold(mutex);
            stopping.store(true, std::memory_order_release);
        }
        wake.notify_all();
    }

    // Waits until the queue can take size characters, or the reader is gone.
    void waitForSpace(LgQueue& queue, int size) {
        const uint32_t needed =
            std::min<uint32_t>(size > 0 ? static_cast<uint32_t>(size) : 0, LgStream::getMaxSize());
        waiters.fetch_add(1, std::memory_order_relaxed);
        std::unique_lock<std::mutex> hold(mutex);
        while (running.load(std::memory_order_acquire) &&
               (queue.isFull() || queue.getStream().getNumCharacters() < needed)) {
            progress.wait_for(hold, idle);
        }
        waiters.fetch_sub(1, std::memory_order_relaxed);
    }

    void notifyProgress() {
        const std::lock_guard<std::mutex> hold(mutex);
        progress.notify_all();
    }

    const std::chrono::microseconds idle;
    std::mutex mutex;
    std::condition_variable wake;
    std::condition_variable progress;
    std::atomic<bool> stopping{false};
    std::atomic<bool> running{false};
    std::atomic<int> waiters{0};
    std::exception_ptr failure;
};

class LgReaderThread::SpaceObserver : public LgQueue::Observer {
  public:
    explicit SpaceObserver(std::shared_ptr<State> state) : _state(std::move(state)) {}
    bool observesTraffic() const override { return false; }
    void entryAdded(LgQueue&) override {}
    void entryRemoved(LgQueue&) override {}
    void waitForSpace(LgQueue& queue, int size) override { _state->waitForSpace(queue, size); }

  private:
    std::shared_ptr<State> _state;
};

LgReaderThread::LgReaderThread(int idleMicroseconds)
    : _state(std::make_shared<State>(idleMicroseconds)), _logger(nullptr) {}

LgReaderThread::LgReaderThread(LgLogger& logger, int idleMicroseconds)
    : _state(std::make_shared<State>(idleMicroseconds)), _logger(&logger) {}

LgReaderThread::~LgReaderThread() {
    try {
        stop();
    } catch (...) {
        // A destructor cannot report it; stop() is the place to hear of it.
    }
}

void LgReaderThread::start() {
    QN_ASSERT(!isRunning());
    _running = _logger ? _logger : &LgLog::getLogger();
    _state->stopping.store(false, std::memory_order_relaxed);
    _state->failure = nullptr;
    _state->running.store(true, std::memory_order_release);
    _thread = std::thread([state = _state, logger = _running] { state->run(*logger); });
    _wasActive = _running->setActive(true);
}

void LgReaderThread::stop() {
    if (!isRunning()) return;
    _state->requestStop();
    _thread.join();
    _running->setActive(_wasActive);
    if (_state->failure) std::rethrow_exception(_state->failure);
}

std::shared_ptr<LgQueue::Observer> LgReaderThread::getObserver() const {
    return std::make_shared<SpaceObserver>(_state);
}

}  // namespace Qn
