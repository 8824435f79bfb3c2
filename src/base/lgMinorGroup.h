// Qn::LgMinorGroup: a producer's named view onto a major group, tested before
// a message is built.
//
//   static Qn::LgMinorGroup io(Qn::LgMajorGroup::getInstanceForName("Io"), "Io.read");
//   if (io.isLevelEnabled(Qn::LgTypes::Warning)) ...
//
// The test reads the major group's mask at every call, so a later threshold
// change takes effect at once. Safe from any thread.
#pragma once

#include <base/lgMajorGroup.h>

namespace Qn {

class QN_BASE_API LgMinorGroup {
  public:
    // The name is not copied: it must outlive the group.
    // REQUIRES: name is not null (ExInternalError).
    LgMinorGroup(LgMajorGroup& major, const char* name);

    const char* getName() const { return _name; }
    LgMajorGroup& getMajorGroup() const { return _major; }

    // Whether the major group lets level l through: one indirection, one table
    // entry and one AND, no check of l (a value of 7 reads as disabled).
    bool isLevelEnabled(LgTypes::Level l) const {
        return (_major.getLogLevels() & LgTypes::getLevelBit(l)) != 0;
    }

  private:
    LgMajorGroup& _major;
    const char* _name;
};

}  // namespace Qn
