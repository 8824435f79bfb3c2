// Qn::PrPeriodicTimer: calls a function at a fixed period on a thread of its own
// until it is stopped.
//
// Call k (k = 1, 2, ...) is due k periods after start(), counted on the hardware
// counter from that one start stamp, so the calls do not drift however long the
// timer runs: a late call does not delay the next. No call is made before it is
// due. When a call overruns one or more later due times, those calls are
// skipped (and counted as missed) and the timer resumes at the next due time.
//
//   Qn::PrPeriodicTimer heartbeat(0.5, [] { sendHeartbeat(); });
//   heartbeat.start();
//   ...
//   heartbeat.stop();
//
// start(), stop() and the destructor are called from one owning thread; the
// counters may be read from any thread.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API PrPeriodicTimer {
  public:
    using Callback = std::function<void()>;

    // A stopped timer that will call callback every period seconds. Raises
    // PrEx::ExInvalidDuration unless the period is finite and above 0.
    PrPeriodicTimer(double period, Callback callback);
    // Stops the timer; an exception of the callback that stop() did not
    // deliver is dropped.
    ~PrPeriodicTimer();
    PrPeriodicTimer(const PrPeriodicTimer&) = delete;
    PrPeriodicTimer& operator=(const PrPeriodicTimer&) = delete;

    // Takes the start stamp, resets the counts and starts the thread. Raises
    // PrEx::ExAlreadyRunning while the timer runs (or from its own callback).
    void start();
    // Stops the timer: no further call starts, and stop() returns once a call
    // in progress has ended and the thread is gone. Called from the callback, it
    // returns at once and the timer ends when the callback returns. An exception
    // that escaped the callback (it stopped the timer) is raised here, once.
    // Does nothing on a timer that is not running.
    void stop();

    // Whether the timer runs: after start() until stop() or a callback failure.
    bool isRunning() const { return _running.load(std::memory_order_acquire); }
    double getPeriod() const { return _period; }
    // The hardware counter stamp of the last start(); call k is due at this
    // stamp plus k periods.
    uint64_t getStartStamp() const { return _start; }
    // The calls made and the due calls skipped since the last start().
    uint64_t getCallCount() const { return _calls.load(std::memory_order_relaxed); }
    uint64_t getMissedCount() const { return _missed.load(std::memory_order_relaxed); }

  private:
    // The thread's work.
    void run();
    // The stamp at which call k is due.
    uint64_t dueStamp(uint64_t k) const;
    // Waits until the stamp or until stopped; true when stopped. REQUIRES: lock
    // holds _mutex.
    bool waitUntil(std::unique_lock<std::mutex>& lock, uint64_t stamp);
    // Ends the thread and returns what the callback raised, if anything.
    std::exception_ptr halt();

    const double _period;
    const Callback _callback;
    double _periodTicks = 0.0;
    uint64_t _start = 0;
    std::thread _thread;
    std::mutex _mutex;
    std::condition_variable _wake;
    bool _stopping = false;       // guarded by _mutex
    std::exception_ptr _failure;  // guarded by _mutex
    std::atomic<bool> _running{false};
    std::atomic<uint64_t> _calls{0};
    std::atomic<uint64_t> _missed{0};
};

}  // namespace Qn
