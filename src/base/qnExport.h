// Export macro of libQNbase: marks the classes, functions and template
// instantiations that form the library's interface. Everything else is hidden.
#pragma once

#if defined(_WIN32)
#if defined(QNBASE_BUILDING)
#define QN_BASE_API __declspec(dllexport)
#else
#define QN_BASE_API __declspec(dllimport)
#endif
#else
#define QN_BASE_API __attribute__((visibility("default")))
#endif
