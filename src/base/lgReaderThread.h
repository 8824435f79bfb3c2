// Qn::LgReaderThread: a Qn::LgReader on a thread of its own, the reader a host
// starts after the logger and stops before it: the process's logger
// (Qn::LgLog), or a given one.
//
// The thread writes entries while there are any and sleeps a short idle period
// when all queues are empty. stop() lets it write every entry committed so far,
// then joins it. Its observer (getObserver) serves producers that wait for room
// (blocking trace): install it with LgThreadQueues::install.
//
//   Qn::LgReaderThread reader;
//   Qn::LgThreadQueues::install(reader.getObserver());
//   reader.start();
//   ... producers log ...
//   reader.stop();          // everything committed is in the files now
//
// Thread-safety: start and stop from one controlling thread.
#pragma once

#include <atomic>
#include <memory>
#include <thread>

#include <base/lgLogger.h>
#include <base/lgQueue.h>

namespace Qn {

class QN_BASE_API LgReaderThread {
  public:
    // idleMicroseconds: how long the thread sleeps when every queue is empty.
    // Without a logger, the thread drains the process's logger, the one that
    // runs at start().
    explicit LgReaderThread(int idleMicroseconds = 1000);
    explicit LgReaderThread(LgLogger& logger, int idleMicroseconds = 1000);
    // Stops the thread if it runs; a failure of the reader is then dropped.
    ~LgReaderThread();
    LgReaderThread(const LgReaderThread&) = delete;
    LgReaderThread& operator=(const LgReaderThread&) = delete;

    // Starts the thread and marks the logger active (LgLogger::isActive): there
    // is a reader for the queues now. REQUIRES: not running.
    void start();
    // Writes every pending entry, stops and joins the thread, and gives the
    // logger back its previous activation. Raises the exception that ended the
    // reader, if one did. Nothing when not running.
    void stop();
    bool isRunning() const { return _thread.joinable(); }

    // An observer whose waitForSpace waits until the reader has made room for
    // the text (or has stopped); entryAdded and entryRemoved do nothing.
    std::shared_ptr<LgQueue::Observer> getObserver() const;

  private:
    class State;
    class SpaceObserver;

    std::shared_ptr<State> _state;
    std::thread _thread;
    // The given logger, else the one the thread drains while it runs.
    LgLogger* _logger;
    LgLogger* _running = nullptr;
    bool _wasActive = false;
};

}  // namespace Qn
