// Test aid: packages that record their initialisation and finalisation in a
// shared log, for the programs that check the package manager's order.
//
//   QN_TEST_PACKAGE(P)            // no dependencies
//   QN_TEST_PACKAGE(Q, QnInit::P) // needs P
//
// Use at global scope; a tag must be declared before a package names it.
#pragma once

#include <string>
#include <vector>

#include <base/inInit.h>

namespace QnTest {

// "init <name>" and "fini <name>" lines in the order the hooks ran.
std::vector<std::string>& packageLog();

// The log lines that start with prefix, in order.
std::vector<std::string> packageLogLines(const std::string& prefix);

}  // namespace QnTest

#define QN_TEST_PACKAGE(tag, ...)                             \
    namespace QnInit {                                        \
    class tag;                                                \
    }                                                         \
    static Qn::InInit<QnInit::tag> tag##Package(              \
        #tag, Qn::InPackageDeps<__VA_ARGS__>{},               \
        [] { QnTest::packageLog().push_back("init " #tag); }, \
        [] { QnTest::packageLog().push_back("fini " #tag); })
