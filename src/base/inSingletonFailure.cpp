#include <base/dbgTypeName.h>
#include <base/inSingleton.h>
#include <base/inSingletonEx.h>

namespace Qn {

void InSingletonFailure::notInitialized(const std::type_info& singleton) {
    throw InSingletonEx::ExNotInitialized(__FILE__, __LINE__,
                                          DbgTypeName::demangle(singleton).c_str());
}

void InSingletonFailure::alreadyInitialized(const std::type_info& singleton) {
    throw InSingletonEx::ExAlreadyInitialized(__FILE__, __LINE__,
                                              DbgTypeName::demangle(singleton).c_str());
}

void InSingletonFailure::alreadyDestroyed(const std::type_info& singleton) {
    throw InSingletonEx::ExAlreadyDestroyed(__FILE__, __LINE__,
                                            DbgTypeName::demangle(singleton).c_str());
}

}  // namespace Qn
