// Qn::LgLogger: the message logger as one object. It holds the sinks the
// levels write to (files and the standard output, one sink per file name),
// the route of each level built once, the inter-process lock, and the
// registry of producer queues that a Qn::LgReader drains into it.
//
// The "logger" package makes the process's logger, which the static
// Qn::LgLog reaches; a test or a host may make its own from a configuration
// and a clock:
//
//   Qn::LgLogger logger(Qn::LgConfig::fromEnvironment());  // files and banners
//   Qn::LgQueue queue(1);
//   logger.getRegistry()->registerQueue(&queue);
//   ... queue.reserveEntry(...), queue.getStream() << ..., queue.addEntry() ...
//   Qn::LgReader(logger).flushAll();
//   logger.getRegistry()->deregisterQueue(&queue);
//
// A line is "hhhhhhhhhh llllllllll (0xtttttttt) Level: text": the upper and
// lower 32 bits of the hardware counter ticks since the start, the producer's
// thread id, the level name; with time stamps disabled, the bare text. Lines
// are buffered and pushed to the system when the reader runs out of entries;
// with an inter-process lock, every line is pushed before the lock is released.
//
// Thread-safety: construction, close, displaySetup and setRegistry belong to
// start-up and shutdown (the reader must not run then); writeLine and flush to
// the one reader; the flags and getRegistry may be used from any thread.
#pragma once

#include <atomic>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include <base/lgClock.h>
#include <base/lgConfig.h>
#include <base/lgInterProcessLock.h>
#include <base/lgRegistry.h>
#include <base/lgSink.h>
#include <base/lgTypes.h>

namespace Qn {

class QN_BASE_API LgLogger {
  public:
    // One line as the reader hands it over. text lies in a buffer with
    // PrefixRoom writable bytes before it and one after it, where the prefix
    // and the end of line go.
    struct Line {
        LgTypes::Level level;
        uint64_t timeStamp;
        uint32_t threadId;
        char* text;
        size_t size;
    };
    static constexpr size_t PrefixRoom = 64;

    // Makes the log directory, opens the files of the configured levels with
    // their start-up banners (under the inter-process lock) and installs a new
    // Qn::LgSimpleRegistry. The group settings of the configuration are not
    // applied here (Qn::LgLog::init does). Raises ExSysErrorNative when the
    // inter-process lock cannot be made.
    explicit LgLogger(const LgConfig& config, const LgClock& clock = LgClock::system());
    // Closes the files if close() has not; a failure is then dropped.
    ~LgLogger();
    LgLogger(const LgLogger&) = delete;
    LgLogger& operator=(const LgLogger&) = delete;

    // Writes the stop banner into every file and closes them. Raises what the
    // inter-process lock raises. Once only; later lines are lost.
    void close();

    // The destinations of the seven levels, as "Level: stdout, file [Append]".
    void displaySetup(std::ostream& out) const;

    // Writes one line to the level's sinks: the one place where an entry takes
    // its form and reaches its sinks. Reader side. REQUIRES: a valid level.
    void writeLine(const Line& line);
    // Pushes the buffered lines of every sink to the system.
    void flush();

    // The level's file stream, or null when it has no file; whether its lines
    // also go to the standard output. REQUIRES: l < NUM_LEVELS.
    std::ostream* getLevelOutput(LgTypes::Level l) const;
    bool isLevelEchoed(LgTypes::Level l) const;
    // Paths of the default event and profiling files as the platform writes
    // them; null when the log directory is unusable.
    const char* getEventFileName() const;
    const char* getProfilingFileName() const;

    // The clock's time stamp at the start; line times count from it.
    uint64_t getStart() const { return _start; }
    // Setters return the previous value.
    bool isTimeStampsEnabled() const { return _timeStamps.load(std::memory_order_relaxed); }
    bool setTimeStamps(bool enabled) { return _timeStamps.exchange(enabled); }
    // Whether a reader drains the queues, so producers log through them.
    bool isActive() const { return _active.load(std::memory_order_relaxed); }
    bool setActive(bool active) { return _active.exchange(active); }
    bool getBlockingTrace() const { return _blockingTrace.load(std::memory_order_relaxed); }
    bool setBlockingTrace(bool blocking) { return _blockingTrace.exchange(blocking); }

    // The inter-process lock, null when none is configured.
    const std::shared_ptr<LgInterProcessLock>& getInterProcessLock() const { return _lock; }

    const std::shared_ptr<LgRegistry>& getRegistry() const { return _registry; }
    // Installs a registry and returns the previous one. When both exist, every
    // queue of the previous one moves to the new one first.
    std::shared_ptr<LgRegistry> setRegistry(std::shared_ptr<LgRegistry> registry);

  private:
    // The sinks of one level, and its name for the prefix.
    struct Route {
        LgSink* sinks[2] = {nullptr, nullptr};
        uint32_t count = 0;
        const char* name = nullptr;
        uint32_t nameSize = 0;
    };

    // Opens the files of the levels, each with its start-up banner, and
    // builds the routes.
    void openSinks(const LgClock& clock, bool timeStamps);
    // Writes the prefix of line so that it ends where the text begins; returns
    // its start.
    char* putPrefix(const Line& line, const Route& route) const;
    void writeBanner(LgSink& sink, const char* text);

    LgConfig::Destination _levels[LgTypes::NUM_LEVELS];
    std::shared_ptr<LgInterProcessLock> _lock;
    std::vector<std::unique_ptr<LgSink>> _files;
    std::unique_ptr<LgSink> _standardOutput;
    LgSink* _levelFile[LgTypes::NUM_LEVELS] = {};
    Route _routes[LgTypes::NUM_LEVELS];
    std::string _eventFile;
    std::string _profilingFile;
    std::shared_ptr<LgRegistry> _registry;
    uint64_t _start = 0;
    std::atomic<bool> _timeStamps;
    std::atomic<bool> _active{false};
    std::atomic<bool> _blockingTrace;
    bool _closed = false;
};

}  // namespace Qn
