#include <base/inContextAliasRegistry.h>

#include <algorithm>
#include <iostream>

#include <base/inEx.h>
#include <base/inInitMgr.h>

namespace Qn {

InContextAliasRegistry::InContextAliasRegistry(bool firstLetterKeys)
    : _firstLetterKeys(firstLetterKeys) {}

std::string InContextAliasRegistry::keyOf(const InContextAliasBase& alias) const {
    const std::string key = alias.getKey();
    return _firstLetterKeys ? key.substr(0, 1) : key;
}

void InContextAliasRegistry::add(InContextAliasBase& alias) {
    if (_initialized) QN_THROW(InEx::ExNoNewContextAliasAfterInit, alias.getName(), alias.getKey());
    auto& holders = _aliases[keyOf(alias)];
    if (!holders.empty()) QN_THROW(InEx::ExContextAliasAlreadyDefined, alias.getKey());
    holders.push_back(&alias);
}

void InContextAliasRegistry::share(InContextAliasBase& alias) {
    _aliases[keyOf(alias)].push_back(&alias);
}

void InContextAliasRegistry::remove(InContextAliasBase& alias) {
    const auto it = _aliases.find(keyOf(alias));
    if (it == _aliases.end()) return;
    auto& holders = it->second;
    holders.erase(std::remove(holders.begin(), holders.end(), &alias), holders.end());
    if (holders.empty()) _aliases.erase(it);
}

void InContextAliasRegistry::initialize(
    const std::function<const char*(const std::string& key)>& valueOf) {
    const bool debugging = InInitMgr::isDebugging();
    for (auto& [key, holders] : _aliases) {
        const char* value = valueOf(key);
        for (InContextAliasBase* alias : holders) {
            if (!alias->isInitialized()) alias->initialize(value);
            if (!debugging) continue;
            std::cerr << "Context alias '" << alias->getName() << "' of "
                      << alias->getSourceString() << ": key '" << alias->getKey() << "', ";
            if (value)
                std::cerr << "value '" << value << "'" << std::endl;
            else
                std::cerr << "no value" << std::endl;
        }
    }
    _initialized = true;
}

void InContextAliasRegistry::finalize() {
    for (auto& entry : _aliases)
        for (InContextAliasBase* alias : entry.second)
            if (alias->isInitialized()) alias->finalize();
    _initialized = false;
}

std::vector<std::string> InContextAliasRegistry::keys() const {
    std::vector<std::string> result;
    for (const auto& entry : _aliases) result.push_back(entry.first);
    return result;
}

}  // namespace Qn
