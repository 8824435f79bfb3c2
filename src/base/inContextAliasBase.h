// Qn::InContextAliasBase: one candidate value of a configuration variable and
// where it comes from (a command-line option, an environment variable, a
// default or a program's override). Each alias belongs to a source with a fixed
// priority; the source gives the alias its value when it is initialised, and a
// variable takes the valid alias of highest priority (see inVariableBase.h).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API InContextAliasBase {
  public:
    explicit InContextAliasBase(const char* name);
    InContextAliasBase(const InContextAliasBase& other);
    InContextAliasBase& operator=(const InContextAliasBase&) = delete;
    virtual ~InContextAliasBase();

    virtual uint32_t getPriority() const = 0;
    virtual const char* getKey() const = 0;
    virtual InContextAliasBase* clone() const = 0;
    // The name of the alias's source, for traces.
    virtual const char* getSourceString() const = 0;

    // Gives the alias its value (a copy; null for none). The alias must not be
    // initialised yet.
    void initialize(const char* value);
    // The alias must be initialised; it is not afterwards.
    void finalize();

    bool isInitialized() const { return _isInitialized; }
    // Initialised and holding a value.
    bool isValid() const { return _isInitialized && _value.has_value(); }
    // Raises InEx::ExUninitializedObject before initialisation and
    // InEx::ExInvalidObject without a value, each with the alias's name.
    const char* getValue() const;
    const char* getName() const { return _name.c_str(); }

  private:
    bool _isInitialized = false;
    std::optional<std::string> _value;
    std::string _name;
};

}  // namespace Qn
