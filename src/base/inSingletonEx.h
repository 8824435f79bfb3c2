// Qn::InSingletonEx: misuse of a package-owned singleton (InSingleton<T>). The
// reason names the singleton's class, "Qn::InSingleton<Foo> is not
// initialized." for example.
#pragma once

#include <stdexcept>

#include <base/inEx.h>

namespace Qn {

class QN_BASE_API InSingletonEx : public InEx {
  public:
    class ExNotInitialized;
    class ExAlreadyInitialized;
    class ExAlreadyDestroyed;

  protected:
    // Reason "<className> <text>.".
    InSingletonEx(const char* fileName, int lineNo, const char* className, const char* text);
};

// Each takes (file name, line, class name).
#define QN_SINGLETON_EX(Name, Text)                                               \
    class QN_BASE_API InSingletonEx::Name                                         \
        : public ExLeaf<InSingletonEx::Name, std::runtime_error, InSingletonEx> { \
      public:                                                                     \
        Name(const char* fileName, int lineNo, const char* className)             \
            : ExLeaf(fileName, lineNo, className, Text) {}                        \
    }
QN_SINGLETON_EX(ExNotInitialized, "is not initialized");
QN_SINGLETON_EX(ExAlreadyInitialized, "has already been initialized");
QN_SINGLETON_EX(ExAlreadyDestroyed, "has already been destroyed");
#undef QN_SINGLETON_EX

}  // namespace Qn
