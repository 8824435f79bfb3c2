#include <base/testPerformer.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <sstream>
#include <string>
#include <string_view>

#include <base/exInternalError.h>
#include <base/osFileReader.h>
#include <base/testGroup.h>
#include <base/traceManager.h>

namespace Qn {

// The export attribute comes from the extern declaration in the header.
template class InSingleton<TestPerformer>;

namespace {

[[noreturn]] void raiseLoadError(int lineNo, const std::string& reason) {
    throw ExInternalError(__FILE__, lineNo, reason.c_str());
}

// "<" + text + ">." after a prefix, as the loader names the offending word.
std::string quoted(const char* prefix, std::string_view text) {
    return std::string(prefix) + "<" + std::string(text) + ">.";
}

// The whole file as text. Raises the loader's error when it cannot be read.
std::string readWholeFile(const char* fileName) {
    std::string text;
    try {
        OsFileReader reader(fileName != nullptr ? fileName : "");
        reader.open();
        char block[4096];
        while (const size_t n = reader.read(block, sizeof block)) text.append(block, n);
        reader.close();
    } catch (const ExBase&) {
        raiseLoadError(__LINE__, quoted("Invalid file name : ", fileName ? fileName : ""));
    }
    return text;
}

// The words of a line, separated by blanks.
Vector<std::string_view> splitWords(std::string_view line) {
    Vector<std::string_view> words;
    size_t at = 0;
    while (true) {
        at = line.find_first_not_of(" \t", at);
        if (at == std::string_view::npos) return words;
        const size_t end = line.find_first_of(" \t", at);
        words.push_back(line.substr(at, end - at));
        if (end == std::string_view::npos) return words;
        at = end;
    }
}

// A positive decimal number that fits in an int, or 0.
int parseCycles(std::string_view word) {
    if (word.empty()) return 0;
    long long value = 0;
    for (const char c : word) {
        if (c < '0' || c > '9') return 0;
        value = value * 10 + (c - '0');
        if (value > INT_MAX) return 0;
    }
    return static_cast<int>(value);
}

ArrayPtr<char> copyText(std::string_view text) {
    ArrayPtr<char> copy(new char[text.size() + 1]);
    std::memcpy(copy.get(), text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

ObjPtr<PrProfiler> makeProfiler(const char* name, ObjPtr<IntervalTimer> timer,
                                PrProfiler::Clock clock) {
    return ObjPtr<PrProfiler>(timer ? new PrProfiler(name, std::move(timer))
                                    : new PrProfiler(name, clock));
}

}  // namespace

TestPerformer& TestPerformer::getInstance() { return InSingleton<TestPerformer>::getInstance(); }

void TestPerformer::createInstance(ObjPtr<IntervalTimer> timeOfDay,
                                   ObjPtr<IntervalTimer> hardware) {
    ObjPtr<TestPerformer> performer(new TestPerformer(std::move(timeOfDay), std::move(hardware)));
    InSingleton<TestPerformer>::create(performer.get());
    (void)performer.release();
}

void TestPerformer::destroyInstance() { InSingleton<TestPerformer>::destroy(); }

TestPerformer::TestPerformer(ObjPtr<IntervalTimer> timeOfDay, ObjPtr<IntervalTimer> hardware)
    : _todProfiler(makeProfiler("_todProfiler", std::move(timeOfDay), PrProfiler::TimeOfDay)),
      _hwProfiler(makeProfiler("_hwProfiler", std::move(hardware), PrProfiler::Hardware)) {}

TestPerformer::~TestPerformer() = default;

void TestPerformer::execute(const char* fileName) {
    loadFile(fileName);
    reset();
    for (Record& record : _records) runRecord(record);
    printSummary();
}

void TestPerformer::loadFile(const char* fileName) {
    _records.clear();
    try {
        const std::string text = readWholeFile(fileName);
        std::string_view rest(text);
        for (int lineNo = 1; !rest.empty(); ++lineNo) {
            const size_t end = rest.find('\n');
            std::string_view line = rest.substr(0, end);
            rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
            if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
            if (line.size() > MaxLineLength)
                raiseLoadError(__LINE__, "Test file line " + std::to_string(lineNo) +
                                             " is longer than 255 characters.");
            parseLine(line);
        }
    } catch (...) {
        _records.clear();
        throw;
    }
}

void TestPerformer::parseLine(std::string_view line) {
    const Vector<std::string_view> words = splitWords(line);
    if (words.empty() || words[0][0] == '#') return;

    if (_records.size() >= MaxRecords) raiseLoadError(__LINE__, "Too many test groups in file.");
    const std::string name(words[0]);
    if (name.size() >= NameSize)
        raiseLoadError(__LINE__, quoted("Test group name is too long: ", name));
    TestGroup* group = TestGroup::getInstance(name.c_str());
    if (group == nullptr) raiseLoadError(__LINE__, quoted("Invalid test group name: ", name));
    const std::string_view cyclesWord = words.size() > 1 ? words[1] : std::string_view();
    const int cycles = parseCycles(cyclesWord);
    if (cycles == 0) raiseLoadError(__LINE__, quoted("Invalid number of cycles: ", cyclesWord));
    if (words.size() - 2 > MaxArgs) raiseLoadError(__LINE__, "Too many args to test group.");

    Record record;
    std::memcpy(record.groupName, name.c_str(), name.size() + 1);
    record.group = group;
    record.cycles = cycles;
    for (size_t i = 2; i < words.size(); ++i) record.args[record.argCount++] = copyText(words[i]);
    _records.push_back(std::move(record));
}

namespace {

// Each argument followed by one blank.
void appendArgs(std::string& text, const ArrayPtr<char>* args, int count) {
    for (int i = 0; i < count; ++i) text.append(args[i].get()).append(" ");
}

}  // namespace

void TestPerformer::runRecord(Record& record) {
    const char* argv[MaxArgs + 1];
    for (int i = 0; i <= record.argCount; ++i) argv[i] = record.args[i].get();
    TraceManager& manager = TraceManager::getInstance();
    for (int cycle = 0; cycle < record.cycles; ++cycle) {
        record.group->prepareCycle(record.argCount, argv);
        std::string executing =
            std::string("Executing ") + record.groupName + " cycle " + std::to_string(cycle) + " ";
        appendArgs(executing, record.args, record.argCount);
        manager.print(executing.c_str());

        start();
        record.group->runCycle(record.argCount, argv);
        stop();
        endCycle();

        std::ostringstream report;
        report << "End of cycle.  Call terminate.\n"
               << _todProfiler->getName() << '\n'
               << *_todProfiler << '\n'
               << _hwProfiler->getName() << '\n'
               << *_hwProfiler;
        manager.print(report.str().c_str());
        record.group->terminate();

        std::ostringstream results;
        record.group->printResults(results);
        manager.print(results.str().c_str());
    }
    const double timeOfDay = _todProfiler->getAverage();
    record.averageTime = timeOfDay > LongRunSeconds ? timeOfDay : _hwProfiler->getAverage();
    reset();
}

void TestPerformer::printSummary() const {
    std::string table =
        "Group Name              nbCycles   average time    options\n"
        "----------              --------   ------------    -------";
    for (const Record& record : _records) {
        char row[128];
        std::snprintf(row, sizeof row, "%-24s %7d %14f    ", record.groupName, record.cycles,
                      record.averageTime);
        table.append("\n").append(row);
        appendArgs(table, record.args, record.argCount);
    }
    TraceManager::getInstance().print(table.c_str());
}

void TestPerformer::start() {
    _todProfiler->start();
    _hwProfiler->start();
}

void TestPerformer::stop() {
    _hwProfiler->stop();
    _todProfiler->stop();
}

void TestPerformer::endCycle() {
    _todProfiler->endCycle();
    _hwProfiler->endCycle();
}

void TestPerformer::reset() {
    _todProfiler->reset();
    _hwProfiler->reset();
}

}  // namespace Qn
