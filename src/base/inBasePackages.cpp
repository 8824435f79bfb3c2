// The packages of libQNbase and the start-up work of each module. Start-up work
// lives here, in one place, so the order in which the library comes up can be
// read at a glance; the manager orders the packages by their dependencies.
#include <base/inBasePackages.h>

#include <base/dbgBuildInfoRegistry.h>
#include <base/dtRefTimeFactory.h>
#include <base/hmHeapMgr.h>
#include <base/hwCounter.h>
#include <base/inInitSources.h>
#include <base/lgLog.h>
#include <base/lgTrace.h>
#include <base/osCpuInfo.h>
#include <base/prSleeper.h>
#include <base/testPerformer.h>

namespace Qn {

template class InInit<QnInit::initialize>;
template class InInit<QnInit::initArg>;
template class InInit<QnInit::osal>;
template class InInit<QnInit::heapMgr>;
template class InInit<QnInit::initVars>;
template class InInit<QnInit::profiling>;
template class InInit<QnInit::logger>;
template class InInit<QnInit::debugging>;
template class InInit<QnInit::baseMath>;
template class InInit<QnInit::random>;
template class InInit<QnInit::discreteTime>;
template class InInit<QnInit::testing>;
template class InInit<QnInit::base>;

}  // namespace Qn

namespace {

using namespace QnInit;
using Qn::InInit;
using Qn::InPackageDeps;

// The sources of configuration values, before any package's variables.
InInit<initialize> initializePackage(
    "initialize", InPackageDeps<>{},
    [] {
        Qn::InInitDef::initialize();
        Qn::InInitEnv::initialize();
        Qn::InInitOvr::initialize();
    },
    [] {
        Qn::InInitOvr::registry().finalize();
        Qn::InInitEnv::registry().finalize();
        Qn::InInitDef::registry().finalize();
    });
InInit<initArg> initArgPackage("initArg", InPackageDeps<initialize>{}, &Qn::InInitArg::initialize,
                               [] { Qn::InInitArg::registry().finalize(); });
InInit<osal> osalPackage("osal", InPackageDeps<initialize>{}, &Qn::OsCpuInfo::initialize);
InInit<heapMgr> heapMgrPackage("heapMgr", InPackageDeps<initialize>{}, &Qn::HmHeapMgr::initialize,
                               &Qn::HmHeapMgr::finalize);
InInit<initVars> initVarsPackage("initVars", InPackageDeps<initialize, osal>{});
// The counter engine and the reference-time factory are made on first use
// without a lock, so they are made here, before other threads can race for them.
// The sleeper is the package's singleton.
InInit<profiling> profilingPackage(
    "profiling", InPackageDeps<initialize, osal>{},
    [] {
        Qn::OsCpuInfo::initialize();
        (void)Qn::HwCounter::getRateNumerator();
        Qn::PrSleeper::createInstance();
    },
    &Qn::PrSleeper::destroyInstance);
// The logger, and the trace manager that sends trace lines through it.
InInit<logger> loggerPackage(
    "logger", InPackageDeps<initialize, osal, profiling>{},
    [] {
        Qn::LgLog::init();
        Qn::LgTrace::installManager();
    },
    [] {
        Qn::LgTrace::removeManager();
        Qn::LgLog::destroy();
    });
// Validates the versions and build stamps of the loaded libraries.
InInit<debugging> debuggingPackage("debugging", InPackageDeps<initArg, initialize, logger, osal>{},
                                   &Qn::DbgBuildInfoRegistry::initialize);
InInit<baseMath> baseMathPackage("baseMath",
                                 InPackageDeps<debugging, initArg, initialize, osal, profiling>{});
InInit<QnInit::random> randomPackage(
    "random", InPackageDeps<debugging, initArg, initialize, osal, profiling>{});
InInit<discreteTime> discreteTimePackage(
    "discreteTime", InPackageDeps<baseMath, debugging, initArg, initialize, profiling>{},
    [] { (void)Qn::DtRefTimeFactory::getInstance(); });
// The performance runner is the testing package's singleton.
InInit<testing> testingPackage(
    "testing", InPackageDeps<debugging, heapMgr, initArg, initialize, logger, osal, profiling>{},
    [] { Qn::TestPerformer::createInstance(); }, &Qn::TestPerformer::destroyInstance);
InInit<base> basePackage(
    "base", InPackageDeps<initialize, initArg, osal, heapMgr, initVars, profiling, logger,
                          debugging, baseMath, QnInit::random, discreteTime, testing>{});

}  // namespace
