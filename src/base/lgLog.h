// Qn::LgLog: the static face of the process's message logger, the
// Qn::LgLogger that the "logger" package starts (init) and stops (destroy).
// It also hands each producer its queue.
//
// init() reads its configuration from the environment (Qn::LgConfig lists the
// variables); a test may start the logger with a configuration and a clock of
// its own instead. While no logger runs, the queries give null, false or 0
// (time stamps: enabled) and the setters change nothing.
//
//   Qn::LgLog::init();                          // the "logger" package does this
//   Qn::LgThreadQueues::install();              // one queue per producing thread
//   Qn::LgReaderThread reader;  reader.start(); // drains into the files
//   ...
//   reader.stop();
//   Qn::LgLog::destroy();
//
// Thread-safety: init, destroy, displaySetup and setRegistry belong to start-up
// and shutdown (or to the host's serialisation); the reader must not run during
// them. getQueue and the flag queries may run on any thread.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>

#include <base/lgClock.h>
#include <base/lgConfig.h>
#include <base/lgInterProcessLock.h>
#include <base/lgLogger.h>
#include <base/lgQueue.h>
#include <base/lgRegistry.h>
#include <base/lgTypes.h>

namespace Qn {

class QN_BASE_API LgLog {
  public:
    // Yields the calling producer's queue.
    using QueueFunction = LgQueue& (*)();

    // Starts the logger from the environment: the default group threshold and
    // the group registry (Qn::LgMajorGroup, from QN_LOG_GROUPS) first, then the
    // logger itself (files, banners, a new Qn::LgSimpleRegistry). Raises
    // ExSysErrorNative when the inter-process lock cannot be made,
    // ExInternalError for a group assignment without "="; the logger is then
    // left stopped.
    // REQUIRES: stopped ("file_prof == 0", "file_log == 0").
    static void init();
    // The same with a given configuration and clock.
    static void init(const LgConfig& config, const LgClock& clock = LgClock::system());
    // Writes the stop banner into every file, closes the files and finalises
    // the group registry. Nothing when stopped.
    static void destroy();
    static bool isInitialized();
    // The running logger. REQUIRES: initialised.
    static LgLogger& getLogger();
    // The destinations of the seven levels, on the standard output.
    static void displaySetup();

    // The calling producer's queue, from the queue function. The default
    // function gives one process-wide queue (thread id 0) that is not
    // registered; Qn::LgThreadQueues installs one queue per thread.
    static LgQueue& getQueue();
    // Installs a queue function; returns the previous one.
    static QueueFunction setQueueFunction(QueueFunction function);

    static std::shared_ptr<LgRegistry> getRegistry();
    // Installs a registry and returns the previous one. When both exist, every
    // queue of the previous registry moves to the new one first.
    static std::shared_ptr<LgRegistry> setRegistry(std::shared_ptr<LgRegistry> registry);

    // The level's output file stream, or null when it has no file.
    // REQUIRES for the level queries: l < NUM_LEVELS.
    static std::ostream* getLevelOutput(LgTypes::Level l);
    // Whether the level's lines also go to the standard output.
    static bool isLevelEchoed(LgTypes::Level l);
    // Whether a level may write to the standard output while the logger is not
    // active: every level but Profiling.
    static bool isInactiveOutputAllowed(LgTypes::Level l);
    // Paths of the event and profiling files as the platform writes them; null
    // when the log directory is unusable or the logger is stopped.
    static const char* getEventFileName();
    static const char* getProfilingFileName();
    // Pushes the buffered lines of every destination to the system.
    static void flush();

    // The hardware time stamp taken at init; line times count from it.
    static uint64_t getStart();
    static void enableTimeStamps();
    static void disableTimeStamps();
    static bool isTimeStampsEnabled();

    // Whether producers log through the queues (false: straight to the
    // standard output). Setters return the previous value.
    static bool isLoggerActive();
    static bool setLoggerActivation(bool active);
    static bool getBlockingTrace();
    static bool setBlockingTrace(bool blocking);

    // The inter-process lock, null when none is configured.
    static std::shared_ptr<LgInterProcessLock> getInterProcessLock();
};

}  // namespace Qn
