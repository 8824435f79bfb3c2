// Qn::List: the linked list used at the library's interface.
#pragma once

#include <list>

namespace Qn {

template <class T>
using List = std::list<T>;

}  // namespace Qn
