#include <base/traceLevel.h>

#include <cstring>

namespace Qn {

TraceLevel::TraceLevel(const char* name, bool enabled) : _enabled(enabled) {
    const size_t length = name ? std::strlen(name) : 0;
    _name.reset(new char[length + 1]);
    if (length) std::memcpy(_name.get(), name, length);
    _name[length] = '\0';
}

}  // namespace Qn
