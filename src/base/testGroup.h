// Qn::TestGroup: a named group of test cases that a test program runs through
// TestMgr::runTest, once from the command line or in cycles from a test file
// (TestPerformer).
//
// A client derives from the class, overrides runCycle (and whichever other
// operations it needs) and makes one static object; constructing it registers
// the group under its name:
//
//   class DecodeGroup : public Qn::TestGroup {
//     public:
//       DecodeGroup() : TestGroup("decode") { setDescription("decodes frames"); }
//       void prepareCycle(int argc, const char* const* argv) override { load(argv); }
//       void runCycle(int argc, const char* const* argv) override { decodeAll(); }
//       void printResults(std::ostream& out) override { out << _frames << " frames"; }
//   };
//   static DecodeGroup decodeGroup;
//
// A cycle calls prepareCycle, runCycle, terminate and printResults in that
// order; the performer times runCycle only. The arguments are the words given
// to the group (argv[argc] is null).
//
// Thread-safety: none. Groups register from static constructors, before main
// runs, and one thread runs them.
#pragma once

#include <iosfwd>
#include <string>

#include <base/arrayPtr.h>
#include <base/qnExport.h>
#include <base/traceLevel.h>

namespace Qn {

class QN_BASE_API TestGroup {
  public:
    // The trace level "Test", under which caseHeader and log write. Bound while
    // the library loads; off unless the trace options show it.
    static TraceLevel& HarnessTraceLevel;

    // Registers the group under name (see setName). A null name leaves it
    // unnamed: it is listed but getInstance cannot find it.
    explicit TestGroup(const char* name);
    // Removes the group from the registry.
    virtual ~TestGroup();
    TestGroup(const TestGroup&) = delete;
    TestGroup& operator=(const TestGroup&) = delete;

    // Called before each cycle, untimed.
    virtual void prepareCycle(int argc, const char* const* argv);
    // The work of one cycle, the part that is timed.
    virtual void runCycle(int argc, const char* const* argv) = 0;
    // Called after each cycle, untimed: releases what the cycle made.
    virtual void terminate();
    // Writes the results of the last cycle; the base writes nothing.
    virtual void printResults(std::ostream& out);

    // Renames the group (a copy of name is kept; null leaves it unnamed) and
    // registers it if it was not yet. Raises ExInternalError "Duplicate test
    // group : "<name>"." when another registered group has that exact name; the
    // group then keeps its old name.
    void setName(const char* name);
    // The name, or null when the group is unnamed.
    const char* getName() const { return _name.get(); }

    void setUsage(const char* usage) { _usage = usage != nullptr ? usage : ""; }
    const char* getUsage() const { return _usage.c_str(); }
    void setDescription(const char* text) { _description = text != nullptr ? text : ""; }
    const char* getDescription() const { return _description.c_str(); }
    // Whether runTest introduces the group's run with its name and description
    // (off by default).
    void setPrintHeaders(bool value) { _printHeaders = value; }
    bool getPrintHeaders() const { return _printHeaders; }
    // Whether runTest hands the group its own name as the first argument, as a
    // main function receives the program name (off by default).
    void setGroupNameInArgs(bool value) { _groupNameInArgs = value; }
    bool getGroupNameInArgs() const { return _groupNameInArgs; }

    // The registered group of exactly that name; null when none has it, and
    // for a null name.
    static TestGroup* getInstance(const char* name);
    // Hands the trace manager "\nRegistered test groups:\n", then one text per
    // registered group in registration order ("  " and the name in a field of
    // 24, then the description; the usage on a second line), then an empty
    // text.
    static void printInstances();

    // When the "Test" level is enabled, hand the trace manager three lines: a
    // rule, "***** text *****" (caseHeader) or "[ text ] " (log), and the rule
    // again.
    static void caseHeader(const char* text);
    static void log(const char* text);

    // Whether the program runs instrumented (set by TestMgr::runTest when the
    // program's file name contains ".pixie").
    static bool isPixified();

  private:
    friend class TestMgr;

    // The three lines of caseHeader and log: middle between two rules of its
    // length made of rule characters.
    static void writeFramed(const std::string& middle, char rule);

    ArrayPtr<char> _name;
    std::string _usage;
    std::string _description;
    bool _printHeaders = false;
    bool _groupNameInArgs = false;

    static bool _isPixified;
};

}  // namespace Qn
