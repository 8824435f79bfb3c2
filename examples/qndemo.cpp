// The library's tour: a host program that starts the library with its command
// line, uses it, and finalises it.
#include <iostream>

#include <base/exInternalError.h>

int main() {
    try {
        throw Qn::ExInternalError(__FILE__, __LINE__, "demo");
    } catch (const Qn::ExBase& e) {
        std::cout << e.getDetailedReason() << "\n";
    }
    return 0;
}
