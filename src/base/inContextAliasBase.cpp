#include <base/inContextAliasBase.h>

#include <base/assertions.h>
#include <base/inEx.h>

namespace Qn {

InContextAliasBase::InContextAliasBase(const char* name) : _name(name ? name : "") {}

InContextAliasBase::InContextAliasBase(const InContextAliasBase& other) = default;

InContextAliasBase::~InContextAliasBase() = default;

void InContextAliasBase::initialize(const char* value) {
    QN_ASSERT_TEXT(!_isInitialized, "!_isInitialized");
    if (value)
        _value = value;
    else
        _value.reset();
    _isInitialized = true;
}

void InContextAliasBase::finalize() {
    QN_ASSERT_TEXT(_isInitialized, "_isInitialized");
    _isInitialized = false;
    _value.reset();
}

const char* InContextAliasBase::getValue() const {
    if (!_isInitialized) QN_THROW(InEx::ExUninitializedObject, _name.c_str());
    if (!_value) QN_THROW(InEx::ExInvalidObject, _name.c_str());
    return _value->c_str();
}

}  // namespace Qn
