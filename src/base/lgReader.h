// Qn::LgReader: drains the queues of a logger's registry, merging them in
// time-stamp order, and hands the logger one line per entry.
//
//   Qn::LgReader reader;                 // the logger of the "logger" package
//   while (running) {
//       if (!reader.flushEarliest()) sleepAWhile();   // nothing pending
//   }
//   reader.flushAll();
//
// Per line the reader walks the registry's queues as they are at that moment,
// takes the earliest entry and writes it: no lock (but the inter-process lock
// around the line, when configured), no allocation. Queues whose producer has
// called creatorExit are deregistered and destroyed once drained.
// Qn::LgReaderThread runs a reader on a thread of its own.
//
// Thread-safety: one reader per logger at a time, on any one thread; it must
// not run while the logger starts, closes or changes its registry.
#pragma once

#include <base/arrayPtr.h>
#include <base/lgLogger.h>
#include <base/lgQueue.h>

namespace Qn {

class QN_BASE_API LgReader {
  public:
    // A reader of the process's logger (Qn::LgLog::getLogger).
    LgReader();
    explicit LgReader(LgLogger& logger);
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

    LgLogger& _logger;
    // The line being written: room for the prefix, the text and its end.
    ArrayPtr<char> _line;
};

}  // namespace Qn
