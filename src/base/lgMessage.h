// Qn::LgMessage and QN_LOG: one statement that logs a message from a producer
// thread.
//
//   static Qn::LgMinorGroup io(Qn::LgMajorGroup::getInstanceForName("Io"), "Io");
//   QN_LOG(io, Qn::LgTypes::Warning) << "read " << bytes << " bytes of " << name;
//
// QN_LOG tests the group first: a disabled level costs one mask test and one
// branch, and the operands after it are not evaluated. Otherwise it reserves
// an entry in the caller's queue (LgLog::getQueue), and when the reservation
// succeeds it writes the operands into the queue's stream and commits the
// entry at the end of the statement. A full queue counts the message as lost,
// without evaluating the operands either. QN_LOG is a complete if-else
// statement: it is safe after an if without braces.
//
// LgMessage is the same in object form, for code that builds a message over
// several statements:
//
//   if (group.isLevelEnabled(Qn::LgTypes::Tracing)) {
//       Qn::LgMessage message(Qn::LgTypes::Tracing);
//       if (message.isReserved()) {
//           for (int v : values) message.stream() << v << ' ';
//       }
//   }   // committed here
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

    // Whether the text may be written (false: the queue counted it as lost).
    bool isReserved() const { return _reserved; }
    // The stream to write the text into. REQUIRES: isReserved().
    LgStream& stream() { return _queue; }

  private:
    LgQueue& _queue;
    const bool _reserved;
};

}  // namespace Qn

#define QN_LOG(group, level)                                                        \
    if (!(group).isLevelEnabled(level)) {                                           \
    } else if (::Qn::LgMessage qnLgMessage_{(level)}; !qnLgMessage_.isReserved()) { \
    } else                                                                          \
        qnLgMessage_.stream()
