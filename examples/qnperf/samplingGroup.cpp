// qnperf group "sampling": draws blocks of samples, the inner loop of every
// renderer that uses the library's generators.
//
//   sampling <generator> <count>    generator: lecuyer, numrec, gaussian, halton
//
// A cycle draws count values (count points for halton) into a buffer made
// beforehand; the results give their mean, which is near 0.5 for the uniform
// generators and near 0 for the gaussian one.
#include <memory>
#include <numeric>
#include <ostream>
#include <vector>

#include <base/rnGaussianRng.h>
#include <base/rnHaltonBiRng.h>
#include <base/rnLecuyerUniformRng.h>
#include <base/rnNumRecUniformRng.h>
#include <base/testGroup.h>

#include "workload.h"

namespace {

const char* const generators[] = {"lecuyer", "numrec", "gaussian", "halton", nullptr};
enum Generator { Lecuyer, NumRec, Gaussian, Halton };

class SamplingGroup : public Qn::TestGroup {
  public:
    SamplingGroup() : TestGroup("sampling") {
        setDescription("draws blocks of samples");
        setUsage("sampling <lecuyer|numrec|gaussian|halton> <count>");
    }

    void prepareCycle(int argc, const char* const* argv) override {
        _workload = QnPerf::parseWorkload(argc, argv, generators, getUsage());
        _x.assign(_workload.count, 0.0);
        _y.assign(_workload.kind == Halton ? _workload.count : 0, 0.0);
        // Every cycle draws the same sequence, from fresh generators.
        _uniform = std::make_unique<Qn::RnLecuyerUniformRng<double>>();
        _numRec = std::make_unique<Qn::RnNumRecUniformRng<double>>(1);
        _gaussian = std::make_unique<Qn::RnGaussianRng<double>>(_uniform.get(), 0.0, 1.0);
        _halton = std::make_unique<Qn::RnHaltonBiRng<double>>();
    }

    void runCycle(int, const char* const*) override {
        switch (static_cast<Generator>(_workload.kind)) {
            case Lecuyer:
                _uniform->getSequence(_workload.count, _x.data());
                break;
            case NumRec:
                _numRec->getSequence(_workload.count, _x.data());
                break;
            case Gaussian:
                _gaussian->getSequence(_workload.count, _x.data());
                break;
            case Halton:
                _halton->getSequence(_workload.count, _x.data(), _y.data());
                break;
        }
    }

    void printResults(std::ostream& out) override {
        out << _workload.count << ' ' << generators[_workload.kind] << " samples, mean "
            << mean(_x);
        if (!_y.empty()) out << ", " << mean(_y);
    }

  private:
    static double mean(const std::vector<double>& values) {
        return std::accumulate(values.begin(), values.end(), 0.0) /
               static_cast<double>(values.size());
    }

    QnPerf::Workload _workload;
    std::vector<double> _x;
    std::vector<double> _y;
    std::unique_ptr<Qn::RnLecuyerUniformRng<double>> _uniform;
    std::unique_ptr<Qn::RnNumRecUniformRng<double>> _numRec;
    std::unique_ptr<Qn::RnGaussianRng<double>> _gaussian;
    std::unique_ptr<Qn::RnHaltonBiRng<double>> _halton;
};

SamplingGroup samplingGroup;

}  // namespace
