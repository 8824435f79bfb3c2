// Qn::InContextAlias<Source, Flag>: an alias of one of the four sources
// (inInitSources.h). Flag 1: the key names where the value is looked up (an
// option letter, an environment variable); flag 0: the key is the value.
//
//   static const Qn::InArgAlias threadsArg("t", "threads option");
//   static const Qn::InEnvAlias threadsEnv("QN_DEMO_THREADS", "threads variable");
//   static const Qn::InDefAlias threadsDef("2", "threads default");
//
// Making an alias registers its key with its source; a copy shares that
// registration, and the last holder of a key removes it.
#pragma once

#include <string>

#include <base/inContextAliasBase.h>
#include <base/inInitSources.h>

namespace Qn {

class InVariableBase;

template <class Source, int Flag>
class InContextAlias : public InContextAliasBase {
  public:
    // Raises InEx::ExNoNewContextAliasAfterInit when the source is initialised
    // and InEx::ExContextAliasAlreadyDefined when the key is taken.
    InContextAlias(const char* key, const char* name);
    InContextAlias(const InContextAlias& other);
    ~InContextAlias() override;

    uint32_t getPriority() const override { return Source::Priority; }
    const char* getKey() const override { return _key.c_str(); }
    InContextAliasBase* clone() const override;
    const char* getSourceString() const override { return initSourceString(); }

    // The class's own name, "Qn::InContextAlias<Qn::InInitEnv, 1>" for example.
    static const char* initSourceString();

  private:
    friend class InVariableBase;
    struct Unregistered {};
    // An alias that no source knows, holding its value already (a pending
    // override).
    InContextAlias(const char* key, const char* name, Unregistered);

    std::string _key;
    bool _registered;
};

using InOvrAlias = InContextAlias<InInitOvr, 0>;
using InArgAlias = InContextAlias<InInitArg, 1>;
using InEnvAlias = InContextAlias<InInitEnv, 1>;
using InDefAlias = InContextAlias<InInitDef, 0>;

extern template class QN_BASE_API InContextAlias<InInitOvr, 0>;
extern template class QN_BASE_API InContextAlias<InInitArg, 1>;
extern template class QN_BASE_API InContextAlias<InInitEnv, 1>;
extern template class QN_BASE_API InContextAlias<InInitDef, 0>;

}  // namespace Qn

#include <base/inContextAlias.imp>
