// Qn::DbgTypeName: readable, namespace-qualified class names from run-time type
// information ("Qn::InEx::ExDependencyCycle" rather than the mangled form).
#pragma once

#include <cstddef>
#include <string>
#include <typeinfo>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API DbgTypeName {
  public:
    // Writes the demangled name of type into out (size bytes, always terminated,
    // cut when longer). Falls back to the raw name when it cannot be demangled.
    static void demangle(const std::type_info& type, char* out, size_t size);
    static std::string demangle(const std::type_info& type);
};

}  // namespace Qn
