// Test aids of the sampling tests: scripted sources and the statistics the
// statistical checks share.
#pragma once

#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include <base/rnBiRng.h>
#include <base/rnRng.h>

namespace RnTest {

// A one-dimensional source that returns a fixed list of values and counts draws.
template <class T>
class ScriptedRng : public Qn::RnRng<T> {
  public:
    explicit ScriptedRng(std::vector<T> values) : _values(std::move(values)) {}
    T operator()() override { return _values.at(_next++); }
    void getSample(T& value) override { value = (*this)(); }
    void getSequence(unsigned int n, T* out) override {
        for (unsigned int i = 0; i < n; ++i) out[i] = (*this)();
    }
    T getEfficientWidth() const override { return 1; }
    T getEfficientMin() const override { return 0; }
    T getEfficientMax() const override { return 1; }
    T getEfficientFraction() const override { return 1; }
    T getPdf(T) const override { return 1; }
    void restart() override { ++restarts; }
    const char* getName() const override { return "Scripted"; }

    std::size_t draws() const { return _next; }
    int restarts = 0;

  private:
    std::vector<T> _values;
    std::size_t _next = 0;
};

// A two-dimensional source that returns a fixed list of points.
template <class T>
class ScriptedBiRng : public Qn::RnBiRng<T> {
  public:
    explicit ScriptedBiRng(std::vector<std::pair<T, T>> points) : _points(std::move(points)) {}
    void getSample(T& x, T& y) override {
        x = _points.at(_next).first;
        y = _points.at(_next++).second;
    }
    void getSequence(unsigned int n, T* x, T* y) override {
        for (unsigned int i = 0; i < n; ++i) getSample(x[i], y[i]);
    }
    void getEfficientWidth(T& x, T& y) const override { x = y = 1; }
    void getEfficientMin(T& x, T& y) const override { x = y = 0; }
    void getEfficientMax(T& x, T& y) const override { x = y = 1; }
    T getEfficientFraction() const override { return 1; }
    T getPdf(T, T) const override { return 1; }
    void restart() override { _next = 0; }
    const char* getName() const override { return "Scripted"; }

  private:
    std::vector<std::pair<T, T>> _points;
    std::size_t _next = 0;
};

// Chi-square statistic of values in [0, 1) counted in `bins` equal bins.
template <class T>
double chiSquare(const std::vector<T>& values, int bins) {
    std::vector<double> counts(bins, 0.0);
    for (T v : values) counts[std::min(bins - 1, int(double(v) * bins))] += 1;
    const double expected = double(values.size()) / bins;
    double chi = 0;
    for (double c : counts) chi += (c - expected) * (c - expected) / expected;
    return chi;
}

// Star discrepancy of 2D points in [0, 1)^2, measured on the corners of a
// grid x grid lattice (a lower bound that converges to the true value).
inline double starDiscrepancy(const std::vector<double>& x, const std::vector<double>& y,
                              int grid = 256) {
    std::vector<double> cumulative((grid + 1) * (grid + 1), 0.0);
    auto at = [&](int i, int j) -> double& { return cumulative[i * (grid + 1) + j]; };
    for (std::size_t p = 0; p < x.size(); ++p) at(int(x[p] * grid) + 1, int(y[p] * grid) + 1) += 1;
    double worst = 0;
    for (int i = 1; i <= grid; ++i)
        for (int j = 1; j <= grid; ++j) {
            at(i, j) += at(i - 1, j) + at(i, j - 1) - at(i - 1, j - 1);
            const double volume = double(i) * j / (double(grid) * grid);
            worst = std::max(worst, std::abs(at(i, j) / double(x.size()) - volume));
        }
    return worst;
}

}  // namespace RnTest
