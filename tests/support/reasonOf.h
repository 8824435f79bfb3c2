// Test aid: the reason of the exception an operation raises.
#pragma once

#include <string>

namespace QnTest {

// Runs operation and returns the reason of the Ex it raises, or
// "<nothing raised>" when it returns normally.
template <class Ex, class F>
std::string reasonOf(F&& operation) {
    try {
        operation();
    } catch (const Ex& e) {
        return e.getReason();
    }
    return "<nothing raised>";
}

}  // namespace QnTest
