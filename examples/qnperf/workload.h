// qnperf: the arguments every group of the program takes, "<kind> <count>":
// which variant of its work to run and how many operations a cycle makes.
#pragma once

#include <cstddef>

namespace QnPerf {

struct Workload {
    size_t kind = 0;     // index into the group's table of kinds
    unsigned count = 0;  // operations a cycle makes, at least 1
};

// Reads "<kind> <count>", kind one of kinds (a table ended by a null entry).
// Raises std::invalid_argument naming usage when the arguments do not fit.
Workload parseWorkload(int argc, const char* const* argv, const char* const* kinds,
                       const char* usage);

}  // namespace QnPerf
