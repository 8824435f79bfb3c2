#include <base/hmHeapMgr.h>

#include <cstring>
#include <limits>
#include <ostream>

#include <base/inInitMgr.h>
#include <base/inValueText.h>
#include <base/objPtr.h>

namespace Qn {

template class InSingleton<HmHeapMgr>;

namespace {

// A flag variable is true when its integer value is at least 1: "0", negative
// numbers and text that does not start with a number are false.
bool readFlag(HmHeapMgr::EnvReader getEnv, const char* name) {
    const char* value = getEnv(name);
    return value && InValueText::toInt(value) >= 1;
}

// A size variable is taken as is: text gives 0 and a negative number wraps.
uint32_t readSize(HmHeapMgr::EnvReader getEnv, const char* name, uint32_t fallback) {
    const char* value = getEnv(name);
    return value ? static_cast<uint32_t>(InValueText::toInt(value)) : fallback;
}

uint32_t clampTo32(unsigned long value) {
    constexpr unsigned long largest = std::numeric_limits<uint32_t>::max();
    return static_cast<uint32_t>(value > largest ? largest : value);
}

template <class T, class U>
T exchangeField(T& field, U value) {
    const T previous = field;
    field = static_cast<T>(value);
    return previous;
}

}  // namespace

HmHeapMgr& HmHeapMgr::getInstance() { return InSingleton<HmHeapMgr>::getInstance(); }

HmHeapMgr* HmHeapMgr::create() { return new HmHeapMgr(); }

void HmHeapMgr::initialize() {
    // The singleton does not adopt the object when it raises: free it then.
    ObjPtr<HmHeapMgr> created(create());
    InSingleton<HmHeapMgr>::create(created.get());
    created.release();
}

void HmHeapMgr::finalize() { InSingleton<HmHeapMgr>::destroy(); }

HmHeapMgr::HmHeapMgr() : HmHeapMgr(&InInitMgr::getEnv) {}

HmHeapMgr::HmHeapMgr(EnvReader getEnv) { readEnvironment(getEnv); }

HmHeapMgr::~HmHeapMgr() = default;

void HmHeapMgr::readEnvironment(EnvReader getEnv) {
    if (const char* level = getEnv("QN_HEAP_SAFETY_LEVEL")) {
        if (std::strcmp(level, "some") == 0) _safetyLevel = SafetySome;
        if (std::strcmp(level, "full") == 0) _safetyLevel = SafetyFull;
        if (std::strcmp(level, "debug") == 0) _safetyLevel = SafetyDebug;
    }
    _output2Prompt = readFlag(getEnv, "QN_HEAP_OUTPUT_PROMPT");
    _continueOnError = readFlag(getEnv, "QN_HEAP_CONTINUE_ON_UNRECOVERABLE_ERROR");
    _useDefaultErrorHandler = readFlag(getEnv, "QN_HEAP_USE_DEFAULT_ERROR_HANDLER");
    _dumpHeapInfo = readFlag(getEnv, "QN_HEAP_DUMP_INFO");
    _checkAllMemory = readFlag(getEnv, "QN_HEAP_CHECK_MEMORY");
    _dumpLeaks = readFlag(getEnv, "QN_HEAP_DUMP_LEAKS");
    // Deferred freeing starts on and is then overwritten by its variable, so an
    // unset variable switches it off: the built-in "on" is never seen. Hosts
    // rely on deferred freeing staying off unless they ask for it.
    _doDeferFreeing = true;
    _doDeferFreeing = readFlag(getEnv, "QN_HEAP_DO_DEFER_FREEING");
    _deferQueueLen = readSize(getEnv, "QN_HEAP_DEFER_QUEUE_LEN", 1000);
    _deferSizeThreshold = readSize(getEnv, "QN_HEAP_DEFER_SIZE_THRESHOLD", 4096);
    _checkFrequency = readSize(getEnv, "QN_HEAP_CHECK_FREQUENCY", 1000);
}

void HmHeapMgr::breakpoint() {}

void HmHeapMgr::checkHeap() const {}

void HmHeapMgr::freeDeferred() const {}

void HmHeapMgr::initMultiThread() {}

bool HmHeapMgr::isValid(void*, unsigned long, PtrType) { return true; }

void HmHeapMgr::protectPtr(void*, PtrProtect) {}

void HmHeapMgr::reportLeakage(unsigned int, unsigned int) const {}

unsigned int HmHeapMgr::setCheckPoint(unsigned int) { return 0; }

void HmHeapMgr::dump(std::ostream& out) const {
    out << "*************** Default (compiler's) heap manager ***************\n"
        << "*****************************************************************\n";
}

void HmHeapMgr::dumpPtrInfo(void*, std::ostream& out) const {
    out << "Ptr info not available with compiler's heap\n";
}

void HmHeapMgr::dumpMallocStats(std::ostream& out) const {
    out << "Malloc stats not available with compiler's heap\n";
}

HmHeapMgr::SafetyLevel HmHeapMgr::setSafetyLevel(SafetyLevel level) {
    return exchangeField(_safetyLevel, level);
}

bool HmHeapMgr::setContinueOnError(bool value) { return exchangeField(_continueOnError, value); }

bool HmHeapMgr::setUseDefaultHandler(bool value) {
    return exchangeField(_useDefaultErrorHandler, value);
}

bool HmHeapMgr::setDumpHeapInfo(bool value) { return exchangeField(_dumpHeapInfo, value); }

bool HmHeapMgr::setCheckAllMemory(bool value) { return exchangeField(_checkAllMemory, value); }

bool HmHeapMgr::setDumpLeaks(bool value) { return exchangeField(_dumpLeaks, value); }

void HmHeapMgr::initDeferFreeing() {}

bool HmHeapMgr::setDoDeferFreeing(bool value) { return exchangeField(_doDeferFreeing, value); }

unsigned long HmHeapMgr::setDeferQueueLen(unsigned long length) {
    return exchangeField(_deferQueueLen, clampTo32(length));
}

unsigned long HmHeapMgr::setDeferSizeThreshold(unsigned long bytes) {
    return exchangeField(_deferSizeThreshold, clampTo32(bytes));
}

unsigned int HmHeapMgr::setCheckFrequency(unsigned int frequency) {
    return exchangeField(_checkFrequency, frequency);
}

}  // namespace Qn
