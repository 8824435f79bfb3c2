#include <base/lgMinorGroup.h>

#include <base/assertions.h>

namespace Qn {

LgMinorGroup::LgMinorGroup(LgMajorGroup& major, const char* name) : _major(major), _name(name) {
    QN_ASSERT(name);
}

}  // namespace Qn
