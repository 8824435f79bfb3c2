// Test aid: the platform being tested, for the rows and tests whose expected
// results differ between Windows and POSIX.
#pragma once

namespace QnTest {

#if defined(_WIN32)
constexpr bool onWindows = true;
#else
constexpr bool onWindows = false;
#endif

}  // namespace QnTest
