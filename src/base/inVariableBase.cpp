#include <base/inVariableBase.h>

#include <algorithm>
#include <iostream>
#include <map>

#include <base/assertions.h>
#include <base/inContextAlias.h>
#include <base/inEx.h>
#include <base/inInitMgr.h>
#include <base/inPackageInit.h>
#include <base/inValueText.h>

namespace Qn {

namespace {

struct Override {
    ObjPtr<InOvrAlias> alias;
    std::string description;
};

// Every live variable by handle, and the overrides waiting for their variable.
std::map<std::string, InVariableBase*>& liveVariables() {
    static std::map<std::string, InVariableBase*> variables;
    return variables;
}

std::map<std::string, Override>& pendingOverrides() {
    static std::map<std::string, Override> overrides;
    return overrides;
}

void traceOverride(const char* what, const char* handle, const char* value,
                   const char* description) {
    std::cerr << "----" << std::endl
              << what << handle << std::endl
              << "     With string          : " << value << std::endl
              << "     Described as         : " << description << std::endl
              << "----" << std::endl;
}

}  // namespace

const InContextAliasDummy InVariableBase::_dummy;

InVariableBase::InVariableBase(const char* handle, InPackageInit& package,
                               const InContextAliasBase& alias0, const InContextAliasBase& alias1,
                               const InContextAliasBase& alias2, const InContextAliasBase& alias3,
                               const InContextAliasBase& alias4, const InContextAliasBase& alias5,
                               const InContextAliasBase& alias6, const InContextAliasBase& alias7,
                               const InContextAliasBase& alias8, const InContextAliasBase& alias9)
    : _handle(handle ? handle : ""), _package(package) {
    if (liveVariables().count(_handle))
        throw InEx::ExHandleAlreadyInUse("inContextAlias", 363, _handle.c_str());
    for (const InContextAliasBase* alias :
         {&alias0, &alias1, &alias2, &alias3, &alias4, &alias5, &alias6, &alias7, &alias8, &alias9})
        if (alias != &_dummy) addAlias(ObjPtr<InContextAliasBase>(alias->clone()));
    liveVariables()[_handle] = this;
    _package.addDependency(this);
}

InVariableBase::~InVariableBase() {
    _package.removeDependency(this);
    liveVariables().erase(_handle);
}

void InVariableBase::addAlias(ObjPtr<InContextAliasBase> alias) {
    // After every alias of the same or a higher priority: among equals, the first
    // given wins.
    const auto at = std::find_if(_aliases.begin(), _aliases.end(), [&](const auto& held) {
        return held->getPriority() < alias->getPriority();
    });
    _aliases.insert(at, std::move(alias));
}

void InVariableBase::initialize() {
    QN_ASSERT_TEXT(_contextAlias == 0, "_contextAlias == 0");
    auto& overrides = pendingOverrides();
    const auto pending = overrides.find(_handle);
    if (pending != overrides.end()) {
        addAlias(std::move(pending->second.alias));
        overrides.erase(pending);
    }
    for (const auto& alias : _aliases) {
        if (alias->isValid()) {
            _contextAlias = alias.get();
            break;
        }
    }
    _isInitialized = true;
    if (_contextAlias && InInitMgr::isDebugging()) {
        std::cerr << "----" << std::endl
                  << "Initializing variable  : " << _handle << std::endl
                  << "     With string       : " << _contextAlias->getValue() << std::endl
                  << "     From context alias: " << _contextAlias->getSourceString() << std::endl
                  << "     Described as      : " << _contextAlias->getName() << std::endl
                  << "----" << std::endl;
    }
}

void InVariableBase::finalize() {
    _contextAlias = nullptr;
    _isInitialized = false;
}

const char* InVariableBase::initSource() const {
    return _contextAlias ? _contextAlias->getSourceString() : nullptr;
}

const char* InVariableBase::chosenText(const char* fileName, int lineNo) const {
    if (!_contextAlias) throw InEx::ExUninitializedObject(fileName, lineNo, _handle.c_str());
    return _contextAlias->getValue();
}

int InVariableBase::readInt() const { return InValueText::toInt(chosenText("inVariable", 48)); }

bool InVariableBase::readBool() const { return InValueText::toBool(chosenText("inVariable", 62)); }

const char* InVariableBase::readText() const { return chosenText("inVariable", 96); }

void InVariableBase::overrideViaHandle(const char* handle, const char* value,
                                       const char* description) {
    handle = handle ? handle : "";
    value = value ? value : "";
    description = description ? description : "";
    if (InInitMgr::isDebugging())
        traceOverride("Adding override for handle: ", handle, value, description);
    const InVariableBase* variable = queryViaHandle(handle);
    if (variable && variable->_isInitialized)
        throw InEx::ExVariableAlreadyInitialized("inContextAlias", 277, handle);
    pendingOverrides()[handle] =
        Override{ObjPtr<InOvrAlias>(new InOvrAlias(value, description, InOvrAlias::Unregistered{})),
                 description};
}

InVariableBase* InVariableBase::queryViaHandle(const char* handle) {
    const auto it = liveVariables().find(handle ? handle : "");
    return it == liveVariables().end() ? nullptr : it->second;
}

bool InVariableBase::isOverridden(const char* handle) {
    return pendingOverrides().count(handle ? handle : "") != 0;
}

void InVariableBase::clearPendingOverrides() {
    auto& overrides = pendingOverrides();
    if (InInitMgr::isDebugging())
        for (const auto& [handle, pending] : overrides)
            traceOverride("Unused override for handle: ", handle.c_str(), pending.alias->getKey(),
                          pending.description.c_str());
    overrides.clear();
}

}  // namespace Qn
