// Qn::InContextAliasRegistry: the aliases of one source, ordered by key, and
// whether the source is initialised. Copies of an alias share its key: the
// registry keeps every holder and drops the key with the last one. Not locked:
// aliases are made with static objects and sources initialised at start-up, on
// one thread.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <base/inContextAliasBase.h>

namespace Qn {

class QN_BASE_API InContextAliasRegistry {
  public:
    // With firstLetterKeys only the first character of a key counts (option
    // letters).
    explicit InContextAliasRegistry(bool firstLetterKeys = false);

    // Registers a new alias. Raises InEx::ExNoNewContextAliasAfterInit once the
    // source is initialised and InEx::ExContextAliasAlreadyDefined for a key
    // that is registered already.
    void add(InContextAliasBase& alias);
    // Registers a copy of a registered alias under the same key.
    void share(InContextAliasBase& alias);
    void remove(InContextAliasBase& alias);

    bool isInitialized() const { return _initialized; }
    // Gives every alias, in key order, the value valueOf returns for its key
    // (null for none); from then on new aliases are refused. Writes the aliases
    // to the standard error stream when QN_DEBUG_INITIALIZE is set.
    void initialize(const std::function<const char*(const std::string& key)>& valueOf);
    // Finalises every initialised alias and accepts new aliases again.
    void finalize();
    // The registered keys, in order.
    std::vector<std::string> keys() const;

  private:
    std::string keyOf(const InContextAliasBase& alias) const;

    bool _firstLetterKeys;
    bool _initialized = false;
    std::map<std::string, std::vector<InContextAliasBase*>> _aliases;
};

}  // namespace Qn
