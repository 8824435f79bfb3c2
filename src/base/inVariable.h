// Qn::InVariable<T>: a configuration variable read as T, for T = int, bool and
// const char*.
//
//   static Qn::InInit<QnInit::demo> demoPackage("demo", ...);
//   static Qn::InVariable<int> threads("demo.threads", demoPackage,
//                                      threadsArg, threadsEnv, threadsDef);
//   ... threads.getValue() ...   // after the package initialised
//
// getValue() raises InEx::ExUninitializedObject with the handle when no alias
// supplied a value. Conversions never fail: int reads like atoi ("12abc" is 12,
// "abc" is 0); bool is false for "0" and "false" in any case, true otherwise
// (the empty text and "no" included).
#pragma once

#include <type_traits>

#include <base/inVariableBase.h>

namespace Qn {

template <class T>
class InVariable : public InVariableBase {
    static_assert(std::is_same_v<T, int> || std::is_same_v<T, bool> ||
                      std::is_same_v<T, const char*>,
                  "configuration variables are int, bool or const char*");

  public:
    using InVariableBase::InVariableBase;

    T getValue() const {
        if constexpr (std::is_same_v<T, int>)
            return readInt();
        else if constexpr (std::is_same_v<T, bool>)
            return readBool();
        else
            return readText();
    }
};

}  // namespace Qn
