// Qn::TestInform: the verdicts a test program reports when a test cannot give
// its normal result, in one uniform wording.
//
//   testNotPerformed("no GPU")      "Test not performed: no GPU"
//   exceptionEncountered(reason)    "Exception encountered: <reason>"
//   abnormalTermination(text)       "Abnormal termination: <text>"
//
// When the environment variable QN_RUN_TEST_MSGS names a file (set and not
// empty in the start-up snapshot), each message replaces the file's content,
// followed by an end of line: a driver that runs the program reads the one
// verdict of the run there. Otherwise, and when that file cannot be written,
// the message goes to the current trace manager.
//
// The operations never raise: they run from terminate handlers too. A null text
// counts as empty. Messages of concurrent callers are not ordered.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API TestInform {
  public:
    static void testNotPerformed(const char* text);
    static void exceptionEncountered(const char* text);
    static void abnormalTermination(const char* text);

  private:
    static void report(const char* prefix, const char* text);
};

}  // namespace Qn
