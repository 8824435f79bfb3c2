#include <base/lgLog.h>

#include <atomic>
#include <iostream>

#include <base/assertions.h>
#include <base/lgMajorGroup.h>

namespace Qn {

namespace {

// The running logger; null while stopped.
std::atomic<LgLogger*> instance{nullptr};

LgLogger* running() { return instance.load(std::memory_order_acquire); }

// The default queue: one for the whole process, made at first use. It is never
// destroyed, because nothing drains it and a queue must be drained first.
LgQueue& processQueue() {
    static LgQueue* const queue = new LgQueue(0);
    return *queue;
}

std::atomic<LgLog::QueueFunction> queueFunction{&processQueue};

void checkLevel(LgTypes::Level l) { QN_ASSERT_TEXT(l < LgTypes::NUM_LEVELS, "l < NUM_LEVELS"); }

}  // namespace

void LgLog::init() { init(LgConfig::fromEnvironment()); }

void LgLog::init(const LgConfig& config, const LgClock& clock) {
    QN_ASSERT_TEXT(!getProfilingFileName(), "file_prof == 0");
    QN_ASSERT_TEXT(!getEventFileName(), "file_log == 0");
    QN_ASSERT(!isInitialized());
    if (config.defaultLevel) LgMajorGroup::setDefaultThreshold(*config.defaultLevel);
    LgMajorGroup::initialize(nullptr);
    try {
        if (config.groups) LgMajorGroup::parse(config.groups->c_str());
        instance.store(new LgLogger(config, clock), std::memory_order_release);
    } catch (...) {
        LgMajorGroup::finalize();
        throw;
    }
}

void LgLog::destroy() {
    LgLogger* logger = instance.exchange(nullptr);
    if (!logger) return;
    const std::unique_ptr<LgLogger> owned(logger);
    try {
        owned->close();
    } catch (...) {
        LgMajorGroup::finalize();
        throw;
    }
    LgMajorGroup::finalize();
}

bool LgLog::isInitialized() { return running() != nullptr; }

LgLogger& LgLog::getLogger() {
    LgLogger* logger = running();
    QN_ASSERT_TEXT(logger, "LgLog::isInitialized()");
    return *logger;
}

void LgLog::displaySetup() {
    if (LgLogger* logger = running()) logger->displaySetup(std::cout);
}

LgQueue& LgLog::getQueue() { return queueFunction.load(std::memory_order_relaxed)(); }

LgLog::QueueFunction LgLog::setQueueFunction(QueueFunction function) {
    QN_ASSERT(function);
    return queueFunction.exchange(function);
}

std::shared_ptr<LgRegistry> LgLog::getRegistry() {
    LgLogger* logger = running();
    return logger ? logger->getRegistry() : nullptr;
}

std::shared_ptr<LgRegistry> LgLog::setRegistry(std::shared_ptr<LgRegistry> registry) {
    LgLogger* logger = running();
    return logger ? logger->setRegistry(std::move(registry)) : nullptr;
}

std::ostream* LgLog::getLevelOutput(LgTypes::Level l) {
    checkLevel(l);
    LgLogger* logger = running();
    return logger ? logger->getLevelOutput(l) : nullptr;
}

bool LgLog::isLevelEchoed(LgTypes::Level l) {
    checkLevel(l);
    LgLogger* logger = running();
    return logger && logger->isLevelEchoed(l);
}

bool LgLog::isInactiveOutputAllowed(LgTypes::Level l) {
    checkLevel(l);
    return l != LgTypes::Profiling;
}

const char* LgLog::getEventFileName() {
    LgLogger* logger = running();
    return logger ? logger->getEventFileName() : nullptr;
}

const char* LgLog::getProfilingFileName() {
    LgLogger* logger = running();
    return logger ? logger->getProfilingFileName() : nullptr;
}

void LgLog::flush() {
    if (LgLogger* logger = running()) logger->flush();
}

uint64_t LgLog::getStart() {
    LgLogger* logger = running();
    return logger ? logger->getStart() : 0;
}

void LgLog::enableTimeStamps() {
    if (LgLogger* logger = running()) logger->setTimeStamps(true);
}

void LgLog::disableTimeStamps() {
    if (LgLogger* logger = running()) logger->setTimeStamps(false);
}

bool LgLog::isTimeStampsEnabled() {
    LgLogger* logger = running();
    return !logger || logger->isTimeStampsEnabled();
}

bool LgLog::isLoggerActive() {
    LgLogger* logger = running();
    return logger && logger->isActive();
}

bool LgLog::setLoggerActivation(bool active) {
    LgLogger* logger = running();
    return logger && logger->setActive(active);
}

bool LgLog::getBlockingTrace() {
    LgLogger* logger = running();
    return logger && logger->getBlockingTrace();
}

bool LgLog::setBlockingTrace(bool blocking) {
    LgLogger* logger = running();
    return logger && logger->setBlockingTrace(blocking);
}

std::shared_ptr<LgInterProcessLock> LgLog::getInterProcessLock() {
    LgLogger* logger = running();
    return logger ? logger->getInterProcessLock() : nullptr;
}

}  // namespace Qn
