// Qn::TestMgr: the body of a test program's main function. runTest runs the
// test group named on the command line and turns the outcome into the exit
// status.
//
//   int main(int argc, char** argv) {
//       // Start-up empties argc and argv: keep a copy of the words first.
//       const std::vector<std::string> words(argv, argv + argc);
//       Qn::InInitGuard library(argc, argv);
//       std::vector<const char*> args;
//       for (const std::string& word : words) args.push_back(word.c_str());
//       args.push_back(nullptr);
//       return Qn::TestMgr::runTest(static_cast<int>(words.size()), args.data());
//   }
//
// The command line is
//
//   <program> <testGroup> [-dumpLibs] [-dumpLeaks] [-detectLeaks] { <args> }
//   <program> <testGroup> [-dumpLibs] [-dumpLeaks] [-detectLeaks] -perf <fileName>
//
// The options follow the group name, in any order; the first other word starts
// the group's arguments, so a group can take words that look like options after
// its first argument. Without -perf the group runs one cycle (prepareCycle,
// runCycle, terminate, printResults) with those arguments, preceded by its own
// name when getGroupNameInArgs(). With -perf the performer runs the test file
// (TestPerformer::execute), which names the groups to run itself; the group on
// the command line must still exist.
//
//   -dumpLibs     lists the loaded libraries and the registered versioned
//                 libraries before the run
//   -dumpLeaks    reports the memory still lost after the run, when a leak
//                 checker is loaded
//   -detectLeaks  the same, and a leak fails the run (status 3)
//
// The two leak options warn that this build has no debugging heap ("Warning:
// -detectLeaks specified but MemDebug version of smartheap is not loaded") and
// use the leak checker of AddressSanitizer when the program has one (HmGC);
// without it they find nothing.
//
// Outcomes, reported through TestInform or the trace manager:
//
//   status 0  "Test group executed successfully."
//   status 1  the usage text (abnormalTermination) and the registered groups,
//             when the command line does not fit; "Unknown test group name."
//             (testNotPerformed) and the registered groups, for an unknown group
//   status 2  an exception left the run (exceptionEncountered): the detailed
//             reason of a library exception, "[Exception Type = <type>] <what>"
//             for another standard exception, "Unknown exception." otherwise
//   status 3  -detectLeaks found memory lost ("Memory leaks detected.",
//             abnormalTermination)
//
// While runTest runs, its terminate handler reports "Terminate handler
// called." (abnormalTermination) and aborts. The language no longer calls an
// unexpected handler: an exception that leaves a function that allows none
// goes straight to terminate. The handler tells that case by the exception in
// flight and reports "Bad exception encountered." (exceptionEncountered) first.
// The previous handler is back when runTest returns.
//
// A program whose file name contains ".pixie" runs instrumented
// (TestGroup::isPixified()).
//
// Not thread-safe: one thread runs the tests of a program.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API TestMgr {
  public:
    enum ExitStatus {
        Success = 0,
        NotRun = 1,  // usage error or unknown group
        ExceptionRaised = 2,
        LeaksDetected = 3
    };

    // Runs the command line argv[0 .. argc-1] (argv[0] the program) as above
    // and returns the exit status. Never raises.
    static int runTest(int argc, const char* const* argv);
    static void setIsPixified(bool value);

  private:
    // The terminate handler installed while runTest runs.
    [[noreturn]] static void onTerminate();
};

}  // namespace Qn
