// Qn::LgReader: drains the queues of the logger's registry, merging them in
// time-stamp order, and writes one line per entry to the level's destinations
// (see lgLog.h for the line form).
//
//   Qn::LgReader reader;
//   while (running) {
//       if (!reader.flushEarliest()) sleepAWhile();   // nothing pending
//   }
//   reader.flushAll();
//
// Queues whose producer has called creatorExit are deregistered and destroyed
// once drained. Qn::LgReaderThread runs a reader on a thread of its own.
// Thread-safety: one reader at a time, on any one thread; it must not run
// during LgLog::init and LgLog::destroy.
#pragma once

#include <base/arrayPtr.h>
#include <base/lgQueue.h>

namespace Qn {

class QN_BASE_API LgReader {
  public:
    LgReader();
    ~LgReader();
    LgReader(const LgReader&) = delete;
    LgReader& operator=(const LgReader&) = delete;

    // Whether any registered queue holds an entry.
    bool eventsPending();
    // Writes the entry with the smallest time stamp of all queues (the earlier
    // queue of the registry wins a tie) and returns true; returns false, after
    // pushing the buffered lines to the system, when every queue is empty.
    bool flushEarliest();
    // Writes every pending entry.
    void flushAll();

  private:
    // Writes the oldest entry of the queue as one line and removes it.
    // REQUIRES: a queue that is not empty ("!q->isEmpty()").
    void flushQueue(LgQueue* q);

    // The text of the entry being written.
    ArrayPtr<char> _text;
};

}  // namespace Qn
