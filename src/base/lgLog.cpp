#include <base/lgLog.h>

#include <atomic>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>

#include <base/assertions.h>
#include <base/hwCounter.h>
#include <base/inEnv.h>
#include <base/lgEx.h>
#include <base/lgInterProcessLockGuard.h>
#include <base/lgMajorGroup.h>
#include <base/lgSimpleRegistry.h>
#include <base/osFilePath.h>
#include <base/osFsUtils.h>

namespace Qn {

namespace {

// Where one level's lines go. Levels with equal file names share one stream.
struct LevelInfo {
    bool enabled = false;
    bool echo = false;
    bool append = false;
    std::shared_ptr<std::ofstream> output;
    // Not owned: points into the environment snapshot or at a path below.
    const char* fileName = nullptr;
};

const char* const levelVariables[LgTypes::NUM_LEVELS] = {
    "QN_LOG_INTERNAL_ERROR", "QN_LOG_FATAL_ERROR", "QN_LOG_RECOVERABLE_ERROR", "QN_LOG_WARNING",
    "QN_LOG_INFORMATIONAL",  "QN_LOG_TRACING",     "QN_LOG_PROFILING",
};

LevelInfo levels[LgTypes::NUM_LEVELS];
OsFilePath profilingFile;
OsFilePath eventFile;
bool initialized = false;
bool groupsInitialized = false;
uint64_t start = 0;
std::atomic<bool> logTimeStamps{true};
std::atomic<bool> loggerActive{false};
std::atomic<bool> blockingTrace{false};
std::shared_ptr<LgRegistry> registry;
std::shared_ptr<LgInterProcessLock> interProcessLock;

// The default queue: one for the whole process, made at first use. It is never
// destroyed, because nothing drains it and a queue must be drained first.
LgQueue& processQueue() {
    static LgQueue* const queue = new LgQueue(0);
    return *queue;
}

std::atomic<LgLog::QueueFunction> queueFunction{&processQueue};

void checkLevel(LgTypes::Level l) { QN_ASSERT_TEXT(l < LgTypes::NUM_LEVELS, "l < NUM_LEVELS"); }

// Reads a destination: "--..." disables; a first "%" echoes, a first "+"
// appends, and a "+" after either appends; the rest names the file.
LevelInfo parseDestination(const char* value) {
    LevelInfo info;
    if (value[0] == '-' && value[1] == '-') return info;
    info.enabled = true;
    const char* name = value;
    if (*name == '%' || *name == '+') {
        info.echo = *name == '%';
        info.append = *name == '+';
        ++name;
        if (*name == '+') {
            info.append = true;
            ++name;
        }
    }
    info.fileName = *name != '\0' ? name : nullptr;
    return info;
}

// The destination of a level whose variable is absent.
LevelInfo defaultDestination(LgTypes::Level l, bool haveDirectory) {
    LevelInfo info;
    info.enabled = haveDirectory || (l != LgTypes::InternalError && l != LgTypes::Profiling);
    info.echo = l == LgTypes::Tracing;
    if (l == LgTypes::Profiling) {
        info.fileName = haveDirectory ? profilingFile.getText() : nullptr;
    } else if (l != LgTypes::Tracing) {
        info.fileName = haveDirectory ? eventFile.getText() : nullptr;
    }
    return info;
}

// Makes the log directory; false when it cannot be made.
bool makeLogDirectory() {
    const char* configured = InEnv::getText("S2M_TEST_DIR");
    try {
        const OsFilePath directory =
            configured && *configured ? OsFilePath(configured) : OsFilePath::getTempDir();
        OsFsUtils::createDirWithParents(directory.getText());
        profilingFile = directory + "prof.log";
        eventFile = directory + "events.log";
        return true;
    } catch (const ExBase&) {
        return false;
    }
}

void readConfiguration() {
    const bool haveDirectory = makeLogDirectory();
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const auto level = static_cast<LgTypes::Level>(l);
        const char* value = InEnv::getText(levelVariables[l]);
        levels[l] =
            value && *value ? parseDestination(value) : defaultDestination(level, haveDirectory);
    }
    if (const char* name = InEnv::getText("QN_LOG_DEFAULT_LEVEL")) {
        try {
            LgMajorGroup::setDefaultThreshold(LgTypes::getLevelFromName(name));
        } catch (const LgEx::InvalidLevelString&) {
            // An unknown name keeps the current default.
        }
    }
    LgMajorGroup::initialize(nullptr);
    groupsInitialized = true;
    if (const char* groups = InEnv::getText("QN_LOG_GROUPS")) LgMajorGroup::parse(groups);
    blockingTrace = InEnv::isSet("QN_BLOCKING_TRACE");
    if (const char* lockName = InEnv::getText("QN_INTERNAL_INTERPROCESS_LOG_LOCK")) {
        interProcessLock = LgInterProcessLock::create(lockName);
    }
    logTimeStamps = !InEnv::isSet("QN_LOG_DISABLE_TIMESTAMPS");
}

using OpenFunction = std::unique_ptr<std::ofstream> (*)(const char*, bool);

// Opens each file once, with its start-up banner; levels naming an earlier
// level's file share its stream. now is the local time in the 24-character
// calendar form with its new line.
void openFiles(OpenFunction open, const char* now) {
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        LevelInfo& info = levels[l];
        if (!info.fileName) continue;
        for (uint32_t earlier = 0; earlier < l && !info.output; ++earlier) {
            if (levels[earlier].fileName &&
                std::strcmp(levels[earlier].fileName, info.fileName) == 0) {
                info.output = levels[earlier].output;
            }
        }
        if (info.output) continue;
        info.output = open(info.fileName, info.append);
        std::ofstream& out = *info.output;
        const LgInterProcessLockGuard hold(interProcessLock.get());
        out << "===== Message Logger Startup =====\n";
        if (logTimeStamps) {
            char frequency[64];
            std::snprintf(frequency, sizeof frequency, "%.9f",
                          double(HwCounter::getRateNumerator()) / HwCounter::getRateDenominator());
            out << "===== Started on " << now << "\n===== Clock Frequency: " << frequency << '\n';
        }
        out.flush();
    }
}

// Closes every open file, once per shared stream, with the stop banner when
// asked.
void closeFiles(bool banner) {
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        LevelInfo& info = levels[l];
        if (!info.output) continue;
        const std::shared_ptr<std::ofstream> output = std::move(info.output);
        info.fileName = nullptr;
        for (uint32_t later = l + 1; later < LgTypes::NUM_LEVELS; ++later) {
            if (levels[later].output == output) {
                levels[later].output.reset();
                levels[later].fileName = nullptr;
            }
        }
        if (banner) {
            const LgInterProcessLockGuard hold(interProcessLock.get());
            *output << "===== Message Logger Stopped =====\n";
            output->flush();
        }
        output->close();
    }
}

// Everything init set up, undone; the files are closed already.
void release() {
    if (groupsInitialized) LgMajorGroup::finalize();
    groupsInitialized = false;
    interProcessLock.reset();
    profilingFile = OsFilePath();
    eventFile = OsFilePath();
    for (LevelInfo& info : levels) info = LevelInfo();
    initialized = false;
}

}  // namespace

void LgLog::init() {
    QN_ASSERT_TEXT(profilingFile.isEmpty(), "file_prof == 0");
    QN_ASSERT_TEXT(eventFile.isEmpty(), "file_log == 0");
    QN_ASSERT(!initialized);
    registry = std::make_shared<LgSimpleRegistry>();
    try {
        readConfiguration();
        start = HwCounter::timeStamp();
        const std::tm local = performLocalTime();
        char now[32];
        std::strftime(now, sizeof now, "%a %b %d %H:%M:%S %Y\n", &local);
        openFiles(&LgLog::performOpen, now);
    } catch (...) {
        closeFiles(false);
        release();
        throw;
    }
    initialized = true;
}

void LgLog::destroy() {
    for (const LevelInfo& info : levels) {
        if (info.fileName) QN_ASSERT_TEXT(info.output, "_level[i]._output");
    }
    closeFiles(true);
    release();
}

bool LgLog::isInitialized() { return initialized; }

void LgLog::displaySetup() {
    std::cout << "===== Log Setup =====" << std::endl;
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const LevelInfo& info = levels[l];
        std::cout << LgTypes::getLevelName(static_cast<LgTypes::Level>(l)) << ": ";
        if (info.enabled) {
            if (info.echo) std::cout << "stdout, ";
            if (info.fileName) std::cout << info.fileName << ' ';
            if (info.append) std::cout << "[Append]";
        } else {
            std::cout << "Disabled";
        }
        std::cout << std::endl;
    }
    std::cout << "===== End Setup =====" << std::endl;
}

LgQueue& LgLog::getQueue() { return queueFunction.load(std::memory_order_relaxed)(); }

LgLog::QueueFunction LgLog::setQueueFunction(QueueFunction function) {
    QN_ASSERT(function);
    return queueFunction.exchange(function);
}

std::shared_ptr<LgRegistry> LgLog::getRegistry() { return registry; }

std::shared_ptr<LgRegistry> LgLog::setRegistry(std::shared_ptr<LgRegistry> newRegistry) {
    if (registry && newRegistry) {
        for (LgQueue* queue : registry->getQueueList()) {
            newRegistry->registerQueue(queue);
            registry->deregisterQueue(queue);
        }
    }
    registry.swap(newRegistry);
    return newRegistry;
}

std::ostream* LgLog::getLevelOutput(LgTypes::Level l) {
    checkLevel(l);
    return levels[l].output.get();
}

bool LgLog::isLevelEchoed(LgTypes::Level l) {
    checkLevel(l);
    return levels[l].echo;
}

bool LgLog::isInactiveOutputAllowed(LgTypes::Level l) {
    checkLevel(l);
    return l != LgTypes::Profiling;
}

const char* LgLog::getEventFileName() {
    return eventFile.isEmpty() ? nullptr : eventFile.getText();
}

const char* LgLog::getProfilingFileName() {
    return profilingFile.isEmpty() ? nullptr : profilingFile.getText();
}

void LgLog::flush() {
    for (const LevelInfo& info : levels) {
        if (info.output) info.output->flush();
    }
    std::cout.flush();
}

uint64_t LgLog::getStart() { return start; }

void LgLog::enableTimeStamps() { logTimeStamps = true; }

void LgLog::disableTimeStamps() { logTimeStamps = false; }

bool LgLog::isTimeStampsEnabled() { return logTimeStamps; }

bool LgLog::isLoggerActive() { return loggerActive.load(std::memory_order_relaxed); }

bool LgLog::setLoggerActivation(bool active) { return loggerActive.exchange(active); }

bool LgLog::getBlockingTrace() { return blockingTrace.load(std::memory_order_relaxed); }

bool LgLog::setBlockingTrace(bool blocking) { return blockingTrace.exchange(blocking); }

std::shared_ptr<LgInterProcessLock> LgLog::getInterProcessLock() { return interProcessLock; }

}  // namespace Qn
