#include <base/prPeriodicTimer.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include <base/hwCounter.h>
#include <base/mathFloat.h>
#include <base/prEx.h>

namespace Qn {

namespace {

// The longest single wait: a longer period is waited for in several, so that the
// wait never overflows the clock of the condition variable.
constexpr double LongestWait = 3600.0;

const char* const TimerName = "periodic timer";

}  // namespace

PrPeriodicTimer::PrPeriodicTimer(double period, Callback callback)
    : _period(period), _callback(std::move(callback)) {
    if (!MathFloat::isFinitePositive(period))
        throw PrEx::ExInvalidDuration(__FILE__, __LINE__, period);
}

PrPeriodicTimer::~PrPeriodicTimer() { (void)halt(); }

void PrPeriodicTimer::start() {
    if (isRunning() || std::this_thread::get_id() == _thread.get_id())
        throw PrEx::ExAlreadyRunning(__FILE__, __LINE__, TimerName);
    // A thread that ended by itself (stopped from its callback, or failed).
    (void)halt();
    _periodTicks = _period / HwCounter::resolution();
    _stopping = false;
    _failure = nullptr;
    _calls.store(0, std::memory_order_relaxed);
    _missed.store(0, std::memory_order_relaxed);
    _running.store(true, std::memory_order_release);
    // The thread's first step takes the lock, so it sees _thread assigned.
    std::lock_guard<std::mutex> lock(_mutex);
    _start = HwCounter::timeStamp();
    _thread = std::thread([this] { run(); });
}

void PrPeriodicTimer::stop() {
    if (std::this_thread::get_id() == _thread.get_id()) {
        std::lock_guard<std::mutex> lock(_mutex);
        _stopping = true;
        _running.store(false, std::memory_order_release);
        return;
    }
    if (const std::exception_ptr failure = halt()) std::rethrow_exception(failure);
}

std::exception_ptr PrPeriodicTimer::halt() {
    {
        std::lock_guard<std::mutex> lock(_mutex);
        _stopping = true;
    }
    _wake.notify_all();
    if (_thread.joinable()) _thread.join();
    _running.store(false, std::memory_order_release);
    return std::exchange(_failure, nullptr);
}

uint64_t PrPeriodicTimer::dueStamp(uint64_t k) const {
    return _start + static_cast<uint64_t>(std::llround(static_cast<double>(k) * _periodTicks));
}

bool PrPeriodicTimer::waitUntil(std::unique_lock<std::mutex>& lock, uint64_t stamp) {
    for (;;) {
        if (_stopping) return true;
        const double remaining = HwCounter::seconds(HwCounter::timeStamp(), stamp);
        if (remaining <= 0.0) return false;
        _wake.wait_for(lock, std::chrono::duration<double>(std::min(remaining, LongestWait)));
    }
}

void PrPeriodicTimer::run() {
    std::unique_lock<std::mutex> lock(_mutex);
    for (uint64_t k = 1; !waitUntil(lock, dueStamp(k));) {
        lock.unlock();
        try {
            _callback();
        } catch (...) {
            lock.lock();
            _failure = std::current_exception();
            _running.store(false, std::memory_order_release);
            return;
        }
        _calls.fetch_add(1, std::memory_order_relaxed);
        lock.lock();
        // The next call due after now; the ones overrun are skipped.
        const uint64_t now = HwCounter::timeStamp();
        uint64_t next = k + 1;
        if (dueStamp(next) <= now) {
            next = std::max(
                next, static_cast<uint64_t>(static_cast<double>(now - _start) / _periodTicks));
            while (dueStamp(next) <= now) ++next;
            _missed.fetch_add(next - k - 1, std::memory_order_relaxed);
        }
        k = next;
    }
}

}  // namespace Qn
