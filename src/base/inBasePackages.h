// The packages of libQNbase. A host or another library that depends on
// QnInit::base gets the whole library initialised first.
//
//   package        needs
//   initialize     -
//   initArg        initialize
//   osal           initialize
//   heapMgr        initialize
//   initVars       initialize, osal
//   profiling      initialize, osal
//   logger         initialize, osal, profiling
//   debugging      initArg, initialize, logger, osal
//   baseMath       debugging, initArg, initialize, osal, profiling
//   random         debugging, initArg, initialize, osal, profiling
//   discreteTime   baseMath, debugging, initArg, initialize, profiling
//   testing        debugging, heapMgr, initArg, initialize, logger, osal, profiling
//   base           all of the above
#pragma once

#include <base/inInit.h>

QN_DECLARE_PACKAGE(QN_BASE_API, initialize)
QN_DECLARE_PACKAGE(QN_BASE_API, initArg)
QN_DECLARE_PACKAGE(QN_BASE_API, osal)
QN_DECLARE_PACKAGE(QN_BASE_API, heapMgr)
QN_DECLARE_PACKAGE(QN_BASE_API, initVars)
QN_DECLARE_PACKAGE(QN_BASE_API, profiling)
QN_DECLARE_PACKAGE(QN_BASE_API, logger)
QN_DECLARE_PACKAGE(QN_BASE_API, debugging)
QN_DECLARE_PACKAGE(QN_BASE_API, baseMath)
QN_DECLARE_PACKAGE(QN_BASE_API, random)
QN_DECLARE_PACKAGE(QN_BASE_API, discreteTime)
QN_DECLARE_PACKAGE(QN_BASE_API, testing)
QN_DECLARE_PACKAGE(QN_BASE_API, base)
