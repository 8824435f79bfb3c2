// Test aid: a trace manager that collects the lines handed to it while it is
// the current one (it takes the place of any manager of lower priority).
#pragma once

#include <string>
#include <vector>

#include <base/traceManager.h>

namespace QnTest {

class TraceCollector : public Qn::TraceManager {
  public:
    explicit TraceCollector(int priority = 1000) : TraceManager(priority) {}
    void print(const char* line) override { lines.emplace_back(line); }
    std::vector<std::string> lines;
};

}  // namespace QnTest
