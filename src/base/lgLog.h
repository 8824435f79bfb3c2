// Qn::LgLog: the process-wide message logger. It decides where the messages of
// each level go (a file, the standard output, both or nowhere), opens the log
// files, keeps the registry of producer queues that Qn::LgReader drains, and
// hands each producer its queue.
//
// init() reads the environment (from the start-up snapshot) once:
//   S2M_TEST_DIR               log directory, made with its missing parents
//                              (default: the temporary directory)
//   QN_LOG_INTERNAL_ERROR, QN_LOG_FATAL_ERROR, QN_LOG_RECOVERABLE_ERROR,
//   QN_LOG_WARNING, QN_LOG_INFORMATIONAL, QN_LOG_TRACING, QN_LOG_PROFILING
//                              destination of each level: "--..." disables it;
//                              a leading "%" echoes to the standard output, a
//                              leading "+" (or "+" after "%") appends; the rest
//                              is the file name, none when it is empty ("%" is
//                              the standard output alone). Defaults: levels 0
//                              to 4 to events.log in the log directory,
//                              Tracing to the standard output, Profiling to
//                              prof.log there.
//   QN_LOG_DEFAULT_LEVEL       default group threshold (a level name)
//   QN_LOG_GROUPS              group thresholds, "Main=Tracing,Io=Error"
//   QN_BLOCKING_TRACE          (set) trace producers may wait for room
//   QN_INTERNAL_INTERPROCESS_LOG_LOCK  name of an inter-process lock held
//                              around every line and banner
//   QN_LOG_DISABLE_TIMESTAMPS  (set) lines without the time and thread prefix
//
// A line is "hhhhhhhhhh llllllllll (0xtttttttt) Level: text": the upper and
// lower 32 bits of the hardware counter ticks since init, the producer's
// thread id, the level name. Lines are buffered and pushed to the system when
// the reader runs out of entries (Qn::LgReader); with an inter-process lock,
// every line is pushed before the lock is released.
//
//   Qn::LgLog::init();                          // the "logger" package does this
//   Qn::LgThreadQueues::install();              // one queue per producing thread
//   Qn::LgReaderThread reader;  reader.start(); // drains into the files
//   ...
//   reader.stop();
//   Qn::LgLog::destroy();
//
// Thread-safety: init, destroy, displaySetup and the setters belong to
// start-up and shutdown (or to the host's serialisation); the reader must not
// run during init and destroy. getQueue and the flag queries may run on any
// thread.
#pragma once

#include <cstdint>
#include <ctime>
#include <iosfwd>
#include <memory>

#include <base/lgInterProcessLock.h>
#include <base/lgQueue.h>
#include <base/lgRegistry.h>
#include <base/lgTypes.h>

namespace Qn {

class QN_BASE_API LgLog {
  public:
    // Yields the calling producer's queue.
    using QueueFunction = LgQueue& (*)();

    // Starts the logger: installs a new Qn::LgSimpleRegistry, reads the
    // environment, initialises the group registry from QN_LOG_GROUPS, opens the
    // files and writes their start-up banners. A log directory that cannot be
    // made leaves the default files unset (and Internal Error and Profiling
    // disabled unless configured). Raises ExSysErrorNative when the
    // inter-process lock cannot be made, ExInternalError for a group
    // assignment without "="; the logger is then left stopped.
    // REQUIRES: stopped ("file_prof == 0", "file_log == 0").
    static void init();
    // Writes the stop banner into every file, closes the files and finalises
    // the group registry.
    static void destroy();
    static bool isInitialized();
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
    // Full paths of the event and profiling files; null when the log directory
    // is unusable or the logger is stopped.
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

  private:
    // Platform services: a file stream opened for writing (appending or
    // truncating), shared with other processes; the local calendar time now.
    static std::unique_ptr<std::ofstream> performOpen(const char* fileName, bool append);
    static std::tm performLocalTime();
};

}  // namespace Qn
