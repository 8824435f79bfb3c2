// Owning pointers to an array (get() and operator[]). ArrayPtrRet is the form a
// query returns, for example ArrayPtrRet<char> for a text it produced.
#pragma once

#include <memory>

namespace Qn {

template <class T>
using ArrayPtr = std::unique_ptr<T[]>;

template <class T>
using ArrayPtrRet = std::unique_ptr<T[]>;

}  // namespace Qn
