// Qn::InContextAliasDummy: the alias that fills the unused alias slots of a
// configuration variable. No source knows it, so it is never initialised and
// never supplies a value; variables do not even keep it.
#pragma once

#include <base/inContextAliasBase.h>

namespace Qn {

class QN_BASE_API InContextAliasDummy : public InContextAliasBase {
  public:
    InContextAliasDummy();

    uint32_t getPriority() const override { return 0; }
    const char* getKey() const override { return ""; }
    InContextAliasBase* clone() const override { return new InContextAliasDummy(*this); }
    const char* getSourceString() const override { return "none"; }
};

}  // namespace Qn
