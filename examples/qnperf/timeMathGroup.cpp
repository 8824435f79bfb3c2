// qnperf group "timeMath": exact time arithmetic between the frame rates of
// film (24/1) and NTSC video (30000/1001), as an editor mixing both does.
//
//   timeMath <operation> <count>    operation: add, compare, convert
//
//   add      sums count times, alternating both rates (at their shared rate)
//   compare  compares count film times with NTSC times of the same count
//   convert  converts count film frame numbers to NTSC, to the nearest frame
#include <cstdint>
#include <limits>
#include <ostream>

#include <base/dtTime.h>
#include <base/dtTimeIndex.h>
#include <base/rational.h>
#include <base/testGroup.h>

#include "workload.h"

namespace {

const char* const operations[] = {"add", "compare", "convert", nullptr};
enum Operation { Add, Compare, Convert };

class TimeMathGroup : public Qn::TestGroup {
  public:
    TimeMathGroup() : TestGroup("timeMath") {
        setDescription("mixed-rate time arithmetic");
        setUsage("timeMath <add|compare|convert> <count>");
    }

    void prepareCycle(int argc, const char* const* argv) override {
        _workload = QnPerf::parseWorkload(argc, argv, operations, getUsage());
        _sum = Qn::DtTime(0, _film);
        _result = 0;
    }

    void runCycle(int, const char* const*) override {
        const int64_t count = _workload.count;
        switch (static_cast<Operation>(_workload.kind)) {
            case Add:
                for (int64_t i = 0; i < count; ++i)
                    _sum += Qn::DtTime(1, (i & 1) != 0 ? _ntsc : _film);
                break;
            case Compare:
                for (int64_t i = 0; i < count; ++i)
                    _result += Qn::DtTime(i, _film) < Qn::DtTime(i, _ntsc) ? 1 : 0;
                break;
            case Convert:
                for (int64_t i = 0; i < count; ++i)
                    _result += Qn::DtTimeIndex(i).convert(_film, _ntsc, std::round_to_nearest);
                break;
        }
    }

    void printResults(std::ostream& out) override {
        out << _workload.count << ' ' << operations[_workload.kind] << " operations, result ";
        if (_workload.kind == Add) {
            out << _sum;
        } else {
            out << _result;
        }
    }

  private:
    const Qn::Rational _film{24, 1};
    const Qn::Rational _ntsc{30000, 1001};
    QnPerf::Workload _workload;
    Qn::DtTime _sum;
    int64_t _result = 0;
};

TimeMathGroup timeMathGroup;

}  // namespace
