// Owning pointers to one object. ObjPtrRet is the form a query returns to hand
// ownership of a new object to its caller.
#pragma once

#include <memory>

namespace Qn {

template <class T>
using ObjPtr = std::unique_ptr<T>;

template <class T>
using ObjPtrRet = std::unique_ptr<T>;

}  // namespace Qn
