// Qn::Vector: the growable array used at the library's interface.
#pragma once

#include <vector>

namespace Qn {

template <class T>
using Vector = std::vector<T>;

}  // namespace Qn
