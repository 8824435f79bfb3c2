// Qn::InEnv: typed reading of environment variables from the start-up snapshot
// (InInitMgr::getEnv), with the conversions of configuration variables.
//
//   const int threads = Qn::InEnv::getInt("QN_DEMO_THREADS", 2);
//   if (Qn::InEnv::getBool("QN_LOG_DISABLE_TIMESTAMPS", false)) ...
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API InEnv {
  public:
    static bool isSet(const char* name);
    // The text, or fallback when the variable is not set.
    static const char* getText(const char* name, const char* fallback = nullptr);
    // The value as atoi reads it ("12abc" is 12, "abc" is 0), or fallback.
    static int getInt(const char* name, int fallback);
    // False for "0" and "false" in any case, true for any other text (the empty
    // one included), or fallback when the variable is not set.
    static bool getBool(const char* name, bool fallback);
};

}  // namespace Qn
