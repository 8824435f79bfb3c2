#include <base/dbgTypeName.h>

#include <cxxabi.h>

#include <cstdlib>
#include <cstring>

namespace Qn {

void DbgTypeName::demangle(const std::type_info& type, char* out, size_t size) {
    if (size == 0) return;
    int status = 0;
    char* readable = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
    const char* text = (status == 0 && readable) ? readable : type.name();
    size_t n = std::strlen(text);
    if (n >= size) n = size - 1;
    std::memcpy(out, text, n);
    out[n] = '\0';
    std::free(readable);
}

std::string DbgTypeName::demangle(const std::type_info& type) {
    char buffer[1024];
    demangle(type, buffer, sizeof buffer);
    return buffer;
}

}  // namespace Qn
