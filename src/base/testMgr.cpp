#include <base/testMgr.h>

#include <cstdlib>
#include <cstring>
#include <exception>
#include <sstream>
#include <string>
#include <typeinfo>

#include <base/dbgBuildInfoRegistry.h>
#include <base/dbgTypeName.h>
#include <base/exBase.h>
#include <base/hmGC.h>
#include <base/testGroup.h>
#include <base/testInform.h>
#include <base/testPerformer.h>
#include <base/traceManager.h>
#include <base/vector.h>

namespace Qn {

namespace {

const char usageText[] =
    "\nArguments: \n\n<testGroup> { <args> } \n<testGroup> -perf <fileName>\n<testGroup> "
    "-dumpLeaks { <args> }\n<testGroup> -dumpLibs { <args> }\n<testGroup> -detectLeaks { <args> "
    "}\n";

// What the command line asks for.
struct CommandLine {
    const char* groupName = nullptr;
    bool dumpLibs = false;
    bool dumpLeaks = false;
    bool detectLeaks = false;
    const char* perfFile = nullptr;
    // The group's own arguments.
    int argCount = 0;
    const char* const* args = nullptr;
};

// Reads argv into line; false when it does not fit the usage.
bool parseCommandLine(int argc, const char* const* argv, CommandLine& line) {
    if (argc < 2 || argv == nullptr) return false;
    for (int i = 0; i < argc; ++i)
        if (argv[i] == nullptr) return false;
    line.groupName = argv[1];
    int at = 2;
    for (; at < argc; ++at) {
        if (std::strcmp(argv[at], "-dumpLibs") == 0) {
            line.dumpLibs = true;
        } else if (std::strcmp(argv[at], "-dumpLeaks") == 0) {
            line.dumpLeaks = true;
        } else if (std::strcmp(argv[at], "-detectLeaks") == 0) {
            line.detectLeaks = true;
        } else {
            break;
        }
    }
    if (at < argc && std::strcmp(argv[at], "-perf") == 0) {
        if (at + 2 != argc) return false;
        line.perfFile = argv[at + 1];
        return true;
    }
    line.argCount = argc - at;
    line.args = argv + at;
    return true;
}

bool hasPixieName(const char* program) {
    if (program == nullptr) return false;
    const char* base = program;
    for (const char* at = program; *at != '\0'; ++at)
        if (*at == '/' || *at == '\\') base = at + 1;
    return std::strstr(base, ".pixie") != nullptr;
}

// Hands text to the trace manager without its final end of line.
void printText(std::string text) {
    if (!text.empty() && text.back() == '\n') text.pop_back();
    TraceManager::getInstance().print(text.c_str());
}

std::string describeCurrentException() {
    try {
        throw;
    } catch (const ExBase& exception) {
        return exception.getDetailedReason();
    } catch (const std::exception& exception) {
        return "[Exception Type = " + DbgTypeName::demangle(typeid(exception)) + "] " +
               exception.what();
    } catch (...) {
        return "Unknown exception.";
    }
}

// One cycle of the group with the arguments of the command line.
void runOnce(TestGroup& group, const CommandLine& line) {
    TraceManager& manager = TraceManager::getInstance();
    if (group.getPrintHeaders()) {
        manager.print(
            (std::string("Test group ") + line.groupName + ": " + group.getDescription()).c_str());
    }
    Vector<const char*> args;
    if (group.getGroupNameInArgs()) args.push_back(line.groupName);
    args.insert(args.end(), line.args, line.args + line.argCount);
    const int count = static_cast<int>(args.size());
    args.push_back(nullptr);

    group.prepareCycle(count, args.data());
    group.runCycle(count, args.data());
    group.terminate();
    std::ostringstream results;
    group.printResults(results);
    manager.print(results.str().c_str());
}

void warnNoMemDebug(const char* option) {
    if (!HmGC::isMemDebugLoaded())
        TraceManager::getInstance().print((std::string("Warning: ") + option +
                                           " specified but MemDebug version of smartheap is not "
                                           "loaded")
                                              .c_str());
}

// Asks the leak checker, when there is one, for the memory lost so far.
bool findLeaks() {
    if (!HmGC::isLeakCheckerLoaded()) return false;
    HmGC detector;
    std::ostringstream summary;
    detector.setOutput(&summary);
    const bool found = detector.checkLeaks();
    if (found) printText(summary.str());
    return found;
}

int runCommandLine(int argc, const char* const* argv) {
    TestMgr::setIsPixified(argc > 0 && argv != nullptr && hasPixieName(argv[0]));
    CommandLine line;
    if (!parseCommandLine(argc, argv, line)) {
        TestInform::abnormalTermination(usageText);
        TestGroup::printInstances();
        return TestMgr::NotRun;
    }
    TestGroup* group = TestGroup::getInstance(line.groupName);
    if (group == nullptr) {
        TestInform::testNotPerformed("Unknown test group name.");
        TestGroup::printInstances();
        return TestMgr::NotRun;
    }
    if (line.detectLeaks) warnNoMemDebug("-detectLeaks");
    if (line.dumpLeaks) warnNoMemDebug("-dumpLeaks");
    if (line.dumpLibs) {
        std::ostringstream libraries;
        DbgBuildInfoRegistry::dumpLibs(libraries);
        printText(libraries.str());
    }

    if (line.perfFile != nullptr) {
        TestPerformer::getInstance().execute(line.perfFile);
    } else {
        runOnce(*group, line);
    }

    if ((line.detectLeaks || line.dumpLeaks) && findLeaks() && line.detectLeaks) {
        TestInform::abnormalTermination("Memory leaks detected.");
        return TestMgr::LeaksDetected;
    }
    TraceManager::getInstance().print("Test group executed successfully.");
    return TestMgr::Success;
}

// Installs a terminate handler for its life.
class TerminateHandlerScope {
  public:
    explicit TerminateHandlerScope(std::terminate_handler handler)
        : _previous(std::set_terminate(handler)) {}
    ~TerminateHandlerScope() { std::set_terminate(_previous); }
    TerminateHandlerScope(const TerminateHandlerScope&) = delete;
    TerminateHandlerScope& operator=(const TerminateHandlerScope&) = delete;

  private:
    std::terminate_handler _previous;
};

}  // namespace

int TestMgr::runTest(int argc, const char* const* argv) {
    const TerminateHandlerScope handler(&TestMgr::onTerminate);
    try {
        return runCommandLine(argc, argv);
    } catch (...) {
        TestInform::exceptionEncountered(describeCurrentException().c_str());
        return ExceptionRaised;
    }
}

void TestMgr::setIsPixified(bool value) { TestGroup::_isPixified = value; }

void TestMgr::onTerminate() {
    if (std::current_exception()) TestInform::exceptionEncountered("Bad exception encountered.");
    TestInform::abnormalTermination("Terminate handler called.");
    std::abort();
}

}  // namespace Qn
