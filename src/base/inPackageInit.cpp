#include <base/inPackageInit.h>

#include <algorithm>
#include <cstring>
#include <iomanip>
#include <iostream>

#include <base/inInitMgr.h>
#include <base/inVariableBase.h>

namespace Qn {

InPackageInit::InPackageInit() : InPackageInit("unnamed") {}

InPackageInit::InPackageInit(const char* name) {
    _name[0] = '\0';
    if (name) {
        std::strncpy(_name, name, NameSize - 1);
        _name[NameSize - 1] = '\0';
    }
}

InPackageInit::~InPackageInit() = default;

void InPackageInit::addDependency(InVariableBase* variable) { _variables.push_back(variable); }

void InPackageInit::removeDependency(InVariableBase* variable) {
    _variables.erase(std::remove(_variables.begin(), _variables.end(), variable), _variables.end());
}

const char* InPackageInit::getName() const { return _name; }

void InPackageInit::addDependency(const std::type_info& package) {
    if (!InInitMgr::getInstance().isPackageInitialized(package)) _dependencies.push_back(&package);
}

void InPackageInit::registerPackage() {
    // Packages register during static construction, possibly before any other
    // object has set up the standard streams.
    static const std::ios_base::Init streams;
    if (InInitMgr::isDebugging())
        std::cerr << "Registering Package: InInit<" << getName() << ">" << std::endl;
    InInitMgr::getInstance().registerPackage(this);
}

void InPackageInit::initialize() {
    if (InInitMgr::isDebugging()) traceOperation("performInitialize()");
    for (InVariableBase* variable : _variables) variable->initialize();
    performInitialize();
    setState(true);
}

void InPackageInit::finalize() {
    if (InInitMgr::isDebugging()) traceOperation("performFinalize()");
    setState(false);
    performFinalize();
    for (auto it = _variables.rbegin(); it != _variables.rend(); ++it) (*it)->finalize();
}

void InPackageInit::traceOperation(const char* operation) const {
    std::cerr << std::setw(static_cast<int>(_dependencies.size())) << ""
              << "InInit<" << getName() << ">::" << operation << std::endl;
}

}  // namespace Qn
