// Qn::Assertions: reporting of broken invariants as Qn::ExInternalError.
//
// The macros below pass the condition's text, the source file and the line; they
// stay active in every build type. A failed check costs a call to a cold function
// that never returns; a passing one costs one predictable branch.
//
//   QN_ASSERT(index < size);
//   QN_ASSERT_TEXT(_end + 1 != _beg, "_end+1U != _beg");   // text fixed by a contract
//   QN_SYS_ASSERT(fd >= 0, errno);
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API Assertions {
  public:
    // Raises ExInternalError "Assertion '<expression>' failed.".
    [[noreturn]] static void throwAssertionFailed(const char* fileName, int lineNo,
                                                  const char* expression);
    // Raises ExInternalError "Assertion '<expression>' failed, errno = <n> (<text>).".
    [[noreturn]] static void throwSysAssertionFailed(const char* fileName, int lineNo,
                                                     const char* expression, int error);
    // Raises ExInternalError "Program aborted.".
    [[noreturn]] static void throwProgramAborted(const char* fileName, int lineNo);
};

}  // namespace Qn

#define QN_ASSERT_TEXT(condition, text)                                       \
    do {                                                                      \
        if (!(condition)) [[unlikely]]                                        \
            ::Qn::Assertions::throwAssertionFailed(__FILE__, __LINE__, text); \
    } while (0)

#define QN_ASSERT(condition) QN_ASSERT_TEXT(condition, #condition)

#define QN_SYS_ASSERT(condition, error)                                                       \
    do {                                                                                      \
        if (!(condition)) [[unlikely]]                                                        \
            ::Qn::Assertions::throwSysAssertionFailed(__FILE__, __LINE__, #condition, error); \
    } while (0)

#define QN_ABORT() ::Qn::Assertions::throwProgramAborted(__FILE__, __LINE__)
