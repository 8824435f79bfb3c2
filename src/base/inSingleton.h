// Qn::InSingleton<T>: the one instance of T whose life is tied to a package.
//
// The owning package creates the object in its start-up hook and hands it over
// with create(); every user reaches it through getInstance(); the package's
// shutdown hook destroys it. It is never made on first use: reaching it before
// create() or after destroy() raises InSingletonEx::ExNotInitialized. A
// singleton is created once and destroyed once in the life of the process.
//
//   InSingleton<HeapMgr>::create(new HeapMgr);   // in performInitialize
//   InSingleton<HeapMgr>::getInstance().dump(std::cout);
//   InSingleton<HeapMgr>::destroy();             // in performFinalize
//
// No lock: creation and destruction happen during single-threaded start-up and
// shutdown; between them getInstance() may be called from any thread. A
// singleton used across libraries is instantiated in the library that owns it
// ("extern template class API InSingleton<T>;" in its header).
#pragma once

#include <typeinfo>

#include <base/qnExport.h>

namespace Qn {

// The cold paths of every singleton: they raise the InSingletonEx exceptions
// naming the singleton's class.
class QN_BASE_API InSingletonFailure {
  public:
    [[noreturn]] static void notInitialized(const std::type_info& singleton);
    [[noreturn]] static void alreadyInitialized(const std::type_info& singleton);
    [[noreturn]] static void alreadyDestroyed(const std::type_info& singleton);
};

template <class T>
class InSingleton {
  public:
    enum State { NotInitialized = 0, Initialized = 1, Destroyed = 2 };

    // Adopts instance. Raises ExAlreadyInitialized or ExAlreadyDestroyed (and
    // then does not adopt it) when the singleton was created before.
    static void create(T* instance);
    // Deletes the instance. Raises ExNotInitialized before create() and
    // ExAlreadyDestroyed after destroy().
    static void destroy();
    // The instance; raises ExNotInitialized unless created and not destroyed.
    static T& getInstance();

    static State getState() { return _state; }

  private:
    static State _state;
    static T* _instance;
};

}  // namespace Qn

#include <base/inSingleton.imp>
