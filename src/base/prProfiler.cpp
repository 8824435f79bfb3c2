#include <base/prProfiler.h>

#include <cstdio>
#include <ostream>

#include <base/assertions.h>
#include <base/hwIntervalTimer.h>
#include <base/prEx.h>
#include <base/todIntervalTimer.h>

namespace Qn {

namespace {

ObjPtr<IntervalTimer> makeTimer(PrProfiler::Clock clock) {
    if (clock == PrProfiler::TimeOfDay) return ObjPtr<IntervalTimer>(new TodIntervalTimer);
    return ObjPtr<IntervalTimer>(new HwIntervalTimer);
}

}  // namespace

PrProfiler::PrProfiler(const char* name, Clock clock) : PrProfiler(name, makeTimer(clock)) {}

PrProfiler::PrProfiler(const char* name, ObjPtr<IntervalTimer> timer)
    : _name(name != nullptr ? name : "anonymous"), _timer(std::move(timer)) {
    QN_ASSERT(_timer != nullptr);
    _timer->setName(_name.c_str());
}

PrProfiler::~PrProfiler() = default;

void PrProfiler::start() {
    if (_running) throw PrEx::ExAlreadyRunning(__FILE__, __LINE__, _name.c_str());
    _running = true;
    _timer->start();
}

void PrProfiler::stop() {
    if (!_running) throw PrEx::ExNotRunning(__FILE__, __LINE__, _name.c_str());
    _timer->stop();
    _running = false;
    const double interval = _timer->timeInterval();
    if (interval > 0.0) _open += interval;
}

void PrProfiler::endCycle() {
    if (_running) throw PrEx::ExStillRunning(__FILE__, __LINE__, _name.c_str());
    if (_count == 0 || _open < _minimum) _minimum = _open;
    if (_count == 0 || _open > _maximum) _maximum = _open;
    _total += _open;
    _open = 0.0;
    ++_count;
}

void PrProfiler::reset() {
    _running = false;
    _count = 0;
    _open = _total = _minimum = _maximum = 0.0;
}

double PrProfiler::getAverage() const {
    return _count != 0 ? _total / static_cast<double>(_count) : 0.0;
}

void PrProfiler::report(std::ostream& stream) const {
    char line[256];
    std::snprintf(line, sizeof line,
                  "cycles = %llu, total = %.6f s, average = %.6f s, minimum = %.6f s, "
                  "maximum = %.6f s",
                  static_cast<unsigned long long>(_count), _total, getAverage(), getMinimum(),
                  getMaximum());
    stream << line;
}

std::ostream& operator<<(std::ostream& stream, const PrProfiler& profiler) {
    profiler.report(stream);
    return stream;
}

}  // namespace Qn
