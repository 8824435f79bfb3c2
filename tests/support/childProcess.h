// Test aid: runs a command through the shell and collects its standard output
// and exit status, for scenarios that need a fresh process.
#pragma once

#include <string>

namespace QnTest {

struct ChildResult {
    int status = -1;     // exit status of the command, -1 when it could not run
    std::string output;  // its standard output
};

ChildResult runChild(const std::string& commandLine);

// Path of a program built beside the tests (adds ".exe" on Windows).
std::string testProgramPath(const std::string& name);

}  // namespace QnTest
