// Qn::TestPerformer: runs the test groups that a test file names, in cycles
// timed by two profilers, and reports their average times in a table.
//
// A test file holds one record a line: the group name, the number of cycles,
// then at most 16 arguments, separated by blanks (spaces or tabs). Blank lines
// and lines whose first word starts with '#' are skipped.
//
//   # group     cycles  arguments
//   sampling    5       lecuyer 200000
//   timeMath    5       add 100000
//
// For each cycle the performer calls the group's prepareCycle, times runCycle
// on the profilers "_todProfiler" (time of day) and "_hwProfiler" (hardware
// counter), then calls terminate and printResults; what it reports goes to the
// current trace manager. A record's average time comes from the time of day
// when that average exceeds 30 seconds (the safer clock over long runs), else
// from the hardware counter (the finer one). The table that ends the run:
//
//   Group Name              nbCycles   average time    options
//   ----------              --------   ------------    -------
//   sampling                       5       0.001873    lecuyer 200000
//
// The one performer belongs to the "testing" package, which makes it at
// start-up (createInstance) and destroys it at shutdown (destroyInstance):
//
//   Qn::TestPerformer::getInstance().execute("perf/default.txt");
//
// Not thread-safe: one thread runs the performer.
#pragma once

#include <string_view>

#include <base/arrayPtr.h>
#include <base/inSingleton.h>
#include <base/intervalTimer.h>
#include <base/objPtr.h>
#include <base/prProfiler.h>
#include <base/qnExport.h>
#include <base/vector.h>

namespace Qn {

class TestGroup;

class QN_BASE_API TestPerformer {
  public:
    // Limits of a test file.
    static constexpr int MaxRecords = 128;
    static constexpr int NameSize = 48;  // a group name has at most 47 characters
    static constexpr int MaxArgs = 16;
    static constexpr int MaxLineLength = 255;
    // Above this average (in seconds) a record's time is taken from the time of
    // day rather than from the hardware counter.
    static constexpr double LongRunSeconds = 30.0;

    // The performer; raises InSingletonEx::ExNotInitialized before
    // createInstance() and after destroyInstance().
    static TestPerformer& getInstance();
    // Makes the performer and hands it to its singleton. Its profilers read the
    // given timers (which it owns) or, for null ones, the time of day and the
    // hardware counter. Raises what InSingleton<TestPerformer>::create raises.
    static void createInstance(ObjPtr<IntervalTimer> timeOfDay = nullptr,
                               ObjPtr<IntervalTimer> hardware = nullptr);
    // Destroys the performer; raises what InSingleton<TestPerformer>::destroy
    // raises.
    static void destroyInstance();

    virtual ~TestPerformer();
    TestPerformer(const TestPerformer&) = delete;
    TestPerformer& operator=(const TestPerformer&) = delete;

    // "anonymous".
    const char* getName() const { return _name; }

    // Loads the test file, runs its records in file order and reports the
    // table. Raises ExInternalError for a malformed file, before any group runs
    // (loading stops at the first error):
    //   "Invalid file name : <name>."        the file cannot be opened
    //   "Test file line <n> is longer than 255 characters."
    //   "Too many test groups in file."      a 129th record
    //   "Test group name is too long: <name>."   48 characters or more
    //   "Invalid test group name: <name>."   no group has that name
    //   "Invalid number of cycles: <word>."  not a positive decimal number
    //   "Too many args to test group."       a 17th argument
    // What a group raises goes through, and the run stops there.
    void execute(const char* fileName);

  private:
    // One line of the test file.
    struct Record {
        char groupName[NameSize] = {};
        TestGroup* group = nullptr;
        int cycles = 0;
        int argCount = 0;
        // The arguments, followed by a null entry.
        ArrayPtr<char> args[MaxArgs + 1];
        double averageTime = 0.0;
    };

    TestPerformer(ObjPtr<IntervalTimer> timeOfDay, ObjPtr<IntervalTimer> hardware);

    // Replaces the records by those of the file.
    void loadFile(const char* fileName);
    // Appends the record of one line of words; ignores lines without words.
    void parseLine(std::string_view line);
    void runRecord(Record& record);
    void printSummary() const;

    // Both profilers together.
    void start();
    void stop();
    void endCycle();
    void reset();

    const char* _name = "anonymous";
    ObjPtr<PrProfiler> _todProfiler;
    ObjPtr<PrProfiler> _hwProfiler;
    Vector<Record> _records;
};

extern template class QN_BASE_API InSingleton<TestPerformer>;

}  // namespace Qn
