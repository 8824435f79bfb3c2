// qnperf: the performance test program. Its groups (one per file of this
// directory) exercise the library's hot paths; a test file names the groups,
// their cycles and arguments, and the program reports the average time of each.
//
//   qnperf sampling -perf perf/default.txt     # every record of the file, timed
//   qnperf timeMath convert 100000             # one cycle of one group
//   qnperf                                     # the usage and the groups
//
// The exit status is TestMgr::runTest's: 0 success, 1 usage, 2 exception.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <base/inInitGuard.h>
#include <base/testMgr.h>

int main(int argc, char** argv) {
    // The library takes the whole command line at start-up: keep a copy.
    const std::vector<std::string> words(argv, argv + argc);
    try {
        Qn::InInitGuard library(argc, argv);
        std::vector<const char*> args;
        for (const std::string& word : words) args.push_back(word.c_str());
        args.push_back(nullptr);
        return Qn::TestMgr::runTest(static_cast<int>(words.size()), args.data());
    } catch (...) {
        // The guard has reported what failed to start or to finish.
        std::cerr << "qnperf: the library could not start or finish.\n";
        return Qn::TestMgr::ExceptionRaised;
    }
}
