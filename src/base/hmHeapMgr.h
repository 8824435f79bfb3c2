// Qn::HmHeapMgr: the process-wide object through which the application
// configures and inspects its memory allocator.
//
// The class is an interface with a default implementation for the compiler's
// own heap: every checking and protection operation does nothing and every dump
// says that the information is not available. A debugging allocator takes the
// place of the default by deriving from the class.
//
// The configuration is read once, when the object is made, from these
// environment variables (taken from the start-up snapshot, see InEnv):
//
//   QN_HEAP_SAFETY_LEVEL                     "some", "full" or "debug" exactly;
//                                            any other text keeps "full"
//   QN_HEAP_OUTPUT_PROMPT, QN_HEAP_CONTINUE_ON_UNRECOVERABLE_ERROR,
//   QN_HEAP_USE_DEFAULT_ERROR_HANDLER, QN_HEAP_DUMP_INFO,
//   QN_HEAP_CHECK_MEMORY, QN_HEAP_DUMP_LEAKS,
//   QN_HEAP_DO_DEFER_FREEING                 true when the integer value
//                                            (as atoi reads it) is at least 1
//   QN_HEAP_DEFER_QUEUE_LEN (1000), QN_HEAP_DEFER_SIZE_THRESHOLD (4096),
//   QN_HEAP_CHECK_FREQUENCY (1000)           the integer value as is: text
//                                            gives 0, -1 gives 4294967295
//
// Unset flags are false. Malformed values never fail: they fall back as above.
// Later changes go through the setters, which return the previous value.
//
// The "heapMgr" package makes the instance (initialize()) and destroys it
// (finalize()); getInstance() raises InSingletonEx::ExNotInitialized outside
// that span.
//
//   Qn::HmHeapMgr& heap = Qn::HmHeapMgr::getInstance();
//   const unsigned int old = heap.setCheckFrequency(5);
//
// No lock: getters and setters are plain field accesses, meant for start-up.
#pragma once

#include <cstdint>
#include <iosfwd>

#include <base/inSingleton.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API HmHeapMgr {
  public:
    enum SafetyLevel : int32_t { SafetySome = 0, SafetyFull = 1, SafetyDebug = 2 };
    // What a pointer given to isValid() is expected to point to.
    enum PtrType : int32_t { PtrAny = 0, PtrMalloc = 1, PtrNew = 2, PtrNewArray = 3 };
    // How protectPtr() protects the block a pointer points to.
    enum PtrProtect : int32_t {
        ProtectNone = 0,
        ProtectReadOnly = 1,
        ProtectNoFree = 2,
        ProtectNoAccess = 3
    };

    // Reads the environment through this function (InInitMgr::getEnv by
    // default): it returns the value of a variable, or null when it is unset.
    using EnvReader = const char* (*)(const char* name);

    // The instance made by the "heapMgr" package. Raises
    // InSingletonEx::ExNotInitialized before the package ran or after it ended.
    static HmHeapMgr& getInstance();
    // The package's start-up and shutdown work: makes the default manager and
    // hands it to the singleton, and destroys it. Raise the InSingletonEx
    // exceptions when called out of order.
    static void initialize();
    static void finalize();

    HmHeapMgr(const HmHeapMgr&) = delete;
    HmHeapMgr& operator=(const HmHeapMgr&) = delete;
    virtual ~HmHeapMgr();

    // Allocator hooks; the compiler's heap has nothing to do for any of them.
    virtual void breakpoint();
    virtual void checkHeap() const;
    virtual void freeDeferred() const;
    virtual void initMultiThread();
    // Whether ptr points to a valid block of at least size bytes of the given
    // kind; the default cannot tell and says true.
    virtual bool isValid(void* ptr, unsigned long size, PtrType type);
    virtual void protectPtr(void* ptr, PtrProtect protection);
    virtual void reportLeakage(unsigned int fromCheckPoint, unsigned int toCheckPoint) const;
    // Starts a new check point and returns its number; the default records
    // nothing and returns 0.
    virtual unsigned int setCheckPoint(unsigned int checkPoint);

    // Dumps of the heap, the allocator's statistics and one pointer's block.
    virtual void dump(std::ostream& out) const;
    virtual void dumpPtrInfo(void* ptr, std::ostream& out) const;
    virtual void dumpMallocStats(std::ostream& out) const;

    // Each stores the new value and returns the previous one.
    virtual SafetyLevel setSafetyLevel(SafetyLevel level);
    virtual bool setContinueOnError(bool value);
    virtual bool setUseDefaultHandler(bool value);
    virtual bool setDumpHeapInfo(bool value);
    virtual bool setCheckAllMemory(bool value);
    virtual bool setDumpLeaks(bool value);
    // Tells the allocator to prepare its deferred-free queue before deferred
    // freeing is switched on; the compiler's heap defers nothing.
    virtual void initDeferFreeing();
    virtual bool setDoDeferFreeing(bool value);
    // The three sizes are kept in 32 bits: larger values are stored as
    // 4294967295 (the previous value is returned as usual).
    virtual unsigned long setDeferQueueLen(unsigned long length);
    virtual unsigned long setDeferSizeThreshold(unsigned long bytes);
    virtual unsigned int setCheckFrequency(unsigned int frequency);

    SafetyLevel getSafetyLevel() const { return _safetyLevel; }
    bool isOutput2Prompt() const { return _output2Prompt; }
    bool isContinueOnError() const { return _continueOnError; }
    bool isUseDefaultErrorHandler() const { return _useDefaultErrorHandler; }
    bool isDumpHeapInfo() const { return _dumpHeapInfo; }
    bool isCheckAllMemory() const { return _checkAllMemory; }
    bool isDumpLeaks() const { return _dumpLeaks; }
    bool isDoDeferFreeing() const { return _doDeferFreeing; }
    unsigned int getDeferQueueLen() const { return _deferQueueLen; }
    unsigned int getDeferSizeThreshold() const { return _deferSizeThreshold; }
    unsigned int getCheckFrequency() const { return _checkFrequency; }

  protected:
    // Sets the defaults, then reads the QN_HEAP_* variables from the start-up
    // snapshot, or through getEnv.
    HmHeapMgr();
    explicit HmHeapMgr(EnvReader getEnv);

  private:
    // The default manager, for the package's start-up.
    static HmHeapMgr* create();
    void readEnvironment(EnvReader getEnv);

    SafetyLevel _safetyLevel = SafetyFull;
    bool _output2Prompt = false;
    bool _continueOnError = false;
    bool _useDefaultErrorHandler = false;
    bool _dumpHeapInfo = false;
    bool _checkAllMemory = false;
    bool _dumpLeaks = false;
    bool _doDeferFreeing = false;
    uint32_t _deferQueueLen = 1000;
    uint32_t _deferSizeThreshold = 4096;
    uint32_t _checkFrequency = 1000;
};

extern template class QN_BASE_API InSingleton<HmHeapMgr>;

}  // namespace Qn
