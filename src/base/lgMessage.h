// Qn::LgMessage and QN_LOG: one statement that logs a message from a producer
// thread.
//
//   static Qn::LgMinorGroup io(Qn::LgMajorGroup::getInstanceForName("Io"), "Io");
//   QN_LOG(io, Qn::LgTypes::Warning) << "read " << bytes << " bytes of " << name;
//
// QN_LOG tests the group first: a disabled level costs one mask test and one
// branch, and the operands are not evaluated. Otherwise it reserves an entry
// in the caller's queue (LgLog::getQueue), writes the operands into the
// queue's stream and commits the entry at the end of the statement. When the
// queue is full the message is counted as lost and nothing is written. QN_LOG
// is an expression statement: it is safe after an if without braces.
//
// LgMessage is the same in object form, for a message built over several
// statements; the entry is committed when the object goes:
//
//   if (group.isLevelEnabled(Qn::LgTypes::Tracing)) {
//       Qn::LgMessage message(Qn::LgTypes::Tracing);
//       for (int v : values) message << v << ' ';
//   }
//
// Producer thread only.
#pragma once

#include <base/lgLog.h>
#include <base/lgMinorGroup.h>

namespace Qn {

class LgMessage {
  public:
    // Reserves an entry of the given level in the caller's queue.
    explicit LgMessage(LgTypes::Level level)
        : _queue(LgLog::getQueue()), _reserved(_queue.reserveEntry(level)) {}
    // Commits the entry when it was reserved.
    ~LgMessage() {
        if (_reserved) _queue.addEntry();
    }
    LgMessage(const LgMessage&) = delete;
    LgMessage& operator=(const LgMessage&) = delete;

    // Whether the text is kept (false: the queue counted the message as lost).
    bool isReserved() const { return _reserved; }
    // Writes a value with the stream's insertion operators, when reserved.
    template <class T>
    LgMessage& operator<<(const T& value) {
        if (_reserved) _queue.getStream() << value;
        return *this;
    }

    // Turns "message << ..." into a void expression for QN_LOG.
    struct Discard {
        void operator&(const LgMessage&) const {}
    };

  private:
    LgQueue& _queue;
    const bool _reserved;
};

}  // namespace Qn

#define QN_LOG(group, level) \
    !(group).isLevelEnabled(level) ? (void)0 : ::Qn::LgMessage::Discard() & ::Qn::LgMessage(level)
