// Qn::InEx: the exceptions of start-up and configuration (packages, context
// aliases, configuration variables, singletons).
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API InEx : public ExBase {
  public:
    class ExPackageNotRegistered;
    class ExDependencyCycle;
    class ExPackageInitError;
    class ExRegAfterInit;
    class ExReinitWithoutGuard;
    class ExDoubleInit;
    class ExFinaliseBeforeInit;
    class ExDoubleFinalise;
    class ExHandleAlreadyInUse;
    class ExUninitializedObject;
    class ExInvalidObject;
    class ExContextAliasAlreadyDefined;
    class ExVariableAlreadyInitialized;
    class ExNoNewContextAliasAfterInit;

  protected:
    InEx(const char* fileName, int lineNo) : ExBase(fileName, lineNo) {}
};

QN_EX_FORMAT(QN_BASE_API, InEx, ExPackageNotRegistered, std::runtime_error,
             "Init Package not registered: '%.*s'.");
QN_EX_FIXED(QN_BASE_API, InEx, ExDependencyCycle, std::logic_error,
            "Init dependencies contain cycle(s)");
QN_EX_FORMAT(QN_BASE_API, InEx, ExPackageInitError, std::runtime_error,
             "Init error in package: '%.*s'.");
QN_EX_FIXED(QN_BASE_API, InEx, ExRegAfterInit, std::runtime_error,
            "Package registered after initialize().");
QN_EX_FIXED(QN_BASE_API, InEx, ExReinitWithoutGuard, std::runtime_error,
            "Reinitialize without using the reinitialize guard.");
QN_EX_FIXED(QN_BASE_API, InEx, ExDoubleInit, std::runtime_error, "Multiple calls to initialize().");
QN_EX_FIXED(QN_BASE_API, InEx, ExFinaliseBeforeInit, std::runtime_error,
            "Call to finalize() before initialize().");
QN_EX_FIXED(QN_BASE_API, InEx, ExDoubleFinalise, std::runtime_error,
            "Multiple calls to finalize().");
QN_EX_FORMAT(QN_BASE_API, InEx, ExHandleAlreadyInUse, std::runtime_error,
             "Trying to register an object with an already used handle: '%.*s'.");
QN_EX_FORMAT(QN_BASE_API, InEx, ExUninitializedObject, std::logic_error,
             "Trying to access an object that is not fully initialized: '%.*s'.");
QN_EX_FORMAT(QN_BASE_API, InEx, ExInvalidObject, std::logic_error,
             "Trying to access an object that has an invalid value: '%.*s'.");
QN_EX_FORMAT(QN_BASE_API, InEx, ExContextAliasAlreadyDefined, std::logic_error,
             "Trying to re-create an already existing Context Alias: '%.*s'.");
QN_EX_FORMAT(QN_BASE_API, InEx, ExVariableAlreadyInitialized, std::logic_error,
             "Trying to override an InVariable that is already initialized: '%.*s'.");
QN_EX_FORMAT2(QN_BASE_API, InEx, ExNoNewContextAliasAfterInit, std::logic_error,
              "Trying to do post initialization registration of context alias instance: "
              "'%.*s' (key: %.*s).");

}  // namespace Qn
