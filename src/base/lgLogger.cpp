#include <base/lgLogger.h>

#include <cstdio>
#include <cstring>
#include <ostream>

#include <base/assertions.h>
#include <base/exBase.h>
#include <base/lgInterProcessLockGuard.h>
#include <base/lgSimpleRegistry.h>
#include <base/osFilePath.h>
#include <base/osFsUtils.h>

namespace Qn {

namespace {

// The prefix without the level name: "hhhhhhhhhh llllllllll (0xtttttttt) " and
// ": " after the name.
constexpr size_t PrefixSize = 10 + 1 + 10 + 4 + 8 + 2 + 2;
static_assert(PrefixSize + sizeof "Internal Error" - 1 <= LgLogger::PrefixRoom,
              "the longest prefix fits in the room before the text");

// Writes value in decimal, zero-filled to ten digits, two digits at a time.
char* putDecimal10(char* out, uint32_t value) {
    static const char pairs[] =
        "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
        "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
        "8081828384858687888990919293949596979899";
    for (int i = 8; i >= 0; i -= 2) {
        std::memcpy(out + i, pairs + 2 * (value % 100), 2);
        value /= 100;
    }
    return out + 10;
}

// Writes value in lower-case hexadecimal, zero-filled to eight digits.
char* putHex8(char* out, uint32_t value) {
    static const char digits[] = "0123456789abcdef";
    for (int i = 7; i >= 0; --i) {
        out[i] = digits[value & 0xF];
        value >>= 4;
    }
    return out + 8;
}

char* putText(char* out, const char* text, size_t size) {
    std::memcpy(out, text, size);
    return out + size;
}

void checkLevel(LgTypes::Level l) { QN_ASSERT_TEXT(l < LgTypes::NUM_LEVELS, "l < NUM_LEVELS"); }

}  // namespace

LgLogger::LgLogger(const LgConfig& config, const LgClock& clock)
    : _registry(std::make_shared<LgSimpleRegistry>()),
      _timeStamps(config.timeStamps),
      _blockingTrace(config.blockingTrace) {
    OsFilePath directory;
    try {
        directory = config.logDirectory.empty() ? OsFilePath::getTempDir()
                                                : OsFilePath(config.logDirectory.c_str());
        OsFsUtils::createDirWithParents(directory.getText());
        _eventFile = LgSink::getPlatformName((directory + "events.log").getText());
        _profilingFile = LgSink::getPlatformName((directory + "prof.log").getText());
    } catch (const ExBase&) {
        // No usable directory: the files that belong there are dropped.
        directory = OsFilePath();
    }
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        LgConfig::Destination& d = _levels[l] = config.levels[l];
        if (d.inLogDirectory && !d.file.empty()) {
            d.file = directory.isEmpty() ? "" : (directory + d.file.c_str()).getText();
            d.inLogDirectory = false;
        }
        if (d.needsLogDirectory && directory.isEmpty()) d = LgConfig::Destination();
    }
    if (config.lockName) _lock = LgInterProcessLock::create(config.lockName->c_str());
    _start = clock.timeStamp();
    openSinks(clock, config.timeStamps);
}

LgLogger::~LgLogger() {
    try {
        close();
    } catch (...) {
        // A destructor cannot report it; close() is the place to hear of it.
    }
}

void LgLogger::openSinks(const LgClock& clock, bool timeStamps) {
    std::string banner = "===== Message Logger Startup =====\n";
    if (timeStamps) {
        const std::tm local = clock.getLocalTime();
        char now[64];
        std::strftime(now, sizeof now, "%a %b %d %H:%M:%S %Y\n", &local);
        char frequency[64];
        std::snprintf(frequency, sizeof frequency, "%.9f", clock.getFrequency());
        banner =
            banner + "===== Started on " + now + "\n===== Clock Frequency: " + frequency + '\n';
    }
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const LgConfig::Destination& d = _levels[l];
        Route& route = _routes[l];
        route.name = LgTypes::getLevelName(static_cast<LgTypes::Level>(l));
        route.nameSize = static_cast<uint32_t>(std::strlen(route.name));
        if (!d.enabled) continue;
        if (!d.file.empty()) {
            // Levels that name an earlier level's file share its sink.
            for (uint32_t earlier = 0; earlier < l && !_levelFile[l]; ++earlier) {
                if (_levelFile[earlier] && _levels[earlier].file == d.file) {
                    _levelFile[l] = _levelFile[earlier];
                }
            }
            if (!_levelFile[l]) {
                _files.push_back(LgSink::openFile(d.file.c_str(), d.append));
                _levelFile[l] = _files.back().get();
                writeBanner(*_levelFile[l], banner.c_str());
            }
            route.sinks[route.count++] = _levelFile[l];
        }
        if (d.echo) {
            if (!_standardOutput) _standardOutput = LgSink::standardOutput();
            route.sinks[route.count++] = _standardOutput.get();
        }
    }
}

void LgLogger::writeBanner(LgSink& sink, const char* text) {
    const LgInterProcessLockGuard hold(_lock.get());
    sink.write(text, std::strlen(text));
    sink.flush();
}

void LgLogger::close() {
    if (_closed) return;
    _closed = true;
    for (const std::unique_ptr<LgSink>& sink : _files) {
        writeBanner(*sink, "===== Message Logger Stopped =====\n");
        sink->close();
    }
    if (_standardOutput) _standardOutput->flush();
}

void LgLogger::displaySetup(std::ostream& out) const {
    out << "===== Log Setup =====" << std::endl;
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const LgConfig::Destination& d = _levels[l];
        out << _routes[l].name << ": ";
        if (d.enabled) {
            if (d.echo) out << "stdout, ";
            if (_levelFile[l]) out << _levelFile[l]->getName() << ' ';
            if (d.append) out << "[Append]";
        } else {
            out << "Disabled";
        }
        out << std::endl;
    }
    out << "===== End Setup =====" << std::endl;
}

char* LgLogger::putPrefix(const Line& line, const Route& route) const {
    const uint64_t ticks = line.timeStamp - _start;
    char* const begin = line.text - (PrefixSize + route.nameSize);
    char* p = putDecimal10(begin, static_cast<uint32_t>(ticks >> 32));
    *p++ = ' ';
    p = putDecimal10(p, static_cast<uint32_t>(ticks));
    p = putText(p, " (0x", 4);
    p = putHex8(p, line.threadId);
    p = putText(p, ") ", 2);
    p = putText(p, route.name, route.nameSize);
    putText(p, ": ", 2);
    return begin;
}

void LgLogger::writeLine(const Line& line) {
    const Route& route = _routes[line.level];
    if (route.count == 0) return;
    char* const begin = isTimeStampsEnabled() ? putPrefix(line, route) : line.text;
    line.text[line.size] = '\n';
    const size_t size = static_cast<size_t>(line.text + line.size + 1 - begin);
    const LgInterProcessLockGuard hold(_lock.get());
    for (uint32_t i = 0; i < route.count; ++i) {
        route.sinks[i]->write(begin, size);
        // Another process may write the next line of the same file.
        if (_lock) route.sinks[i]->flush();
    }
}

void LgLogger::flush() {
    for (const std::unique_ptr<LgSink>& sink : _files) sink->flush();
    if (_standardOutput) _standardOutput->flush();
}

std::ostream* LgLogger::getLevelOutput(LgTypes::Level l) const {
    checkLevel(l);
    return _levelFile[l] ? &_levelFile[l]->getStream() : nullptr;
}

bool LgLogger::isLevelEchoed(LgTypes::Level l) const {
    checkLevel(l);
    return _levels[l].echo;
}

const char* LgLogger::getEventFileName() const {
    return _eventFile.empty() ? nullptr : _eventFile.c_str();
}

const char* LgLogger::getProfilingFileName() const {
    return _profilingFile.empty() ? nullptr : _profilingFile.c_str();
}

std::shared_ptr<LgRegistry> LgLogger::setRegistry(std::shared_ptr<LgRegistry> registry) {
    if (_registry && registry) {
        for (LgQueue* queue : _registry->getQueueList()) {
            registry->registerQueue(queue);
            _registry->deregisterQueue(queue);
        }
    }
    _registry.swap(registry);
    return registry;
}

}  // namespace Qn
