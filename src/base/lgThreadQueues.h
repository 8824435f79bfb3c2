// Qn::LgThreadQueues: one log queue per producing thread, the queue function a
// host installs to log from several threads.
//
// install() makes the logger hand every thread a queue of its own, created and
// registered with the logger's registry at the thread's first message, also
// while a reader runs. When the thread ends (or calls releaseQueue) its queue
// is marked with creatorExit; the reader destroys it once drained.
//
//   Qn::LgLog::init();                 // or the "logger" package
//   Qn::LgThreadQueues::install();
//   std::thread worker([] { QN_LOG(group, Qn::LgTypes::Warning) << "hello"; });
//
// Thread-safety: install during start-up, after LgLog::init and before the
// threads log; getQueue from any thread.
#pragma once

#include <memory>

#include <base/lgQueue.h>

namespace Qn {

class QN_BASE_API LgThreadQueues {
  public:
    // Installs the per-thread queue function. A given observer is installed
    // on every queue made from then on.
    static void install(std::shared_ptr<LgQueue::Observer> observer = nullptr);

    // The calling thread's queue, made and registered with the logger's
    // registry at the first call.
    static LgQueue& getQueue();
    // Hands the calling thread's queue over to the reader now (creatorExit);
    // a later message makes a new queue. The thread's end does the same.
    static void releaseQueue();

    // The operating system's id of the calling thread.
    static unsigned long getCurrentThreadId();

  private:
    // The end of a thread that still had a queue: hands it over to the reader.
    static void threadEnded(void* queue);
    static LgQueue& createQueue();
    static unsigned long performGetCurrentThreadId();
    // Makes the calling thread's end call threadEnded with queue (null: no
    // call).
    static void performWatchThreadExit(LgQueue* queue);
};

}  // namespace Qn
