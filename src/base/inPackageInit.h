// Qn::InPackageInit: a package, the unit of start-up work of a module.
//
// A package names itself, declares which packages must be initialised before it,
// and holds the configuration variables it owns. Concrete packages are
// Qn::InInit<Tag> objects (inInit.h) that register with the process-wide
// Qn::InInitMgr while the library is loaded; the manager initialises them in
// dependency order and finalises them in reverse. Not thread-safe: packages are
// made during static construction and run on the host's main thread.
#pragma once

#include <typeinfo>

#include <base/inPackageInitBase.h>
#include <base/vector.h>

namespace Qn {

class InVariableBase;

class QN_BASE_API InPackageInit : public InPackageInitBase {
  public:
    static constexpr int NameSize = 128;

    // A package named "unnamed".
    InPackageInit();
    // The name is copied, cut to 127 characters.
    explicit InPackageInit(const char* name);
    ~InPackageInit() override;

    InPackageInit(const InPackageInit&) = delete;
    InPackageInit& operator=(const InPackageInit&) = delete;

    // Adds a configuration variable to the package (variables do this themselves
    // when they are made) and removes it again.
    virtual void addDependency(InVariableBase* variable);
    virtual void removeDependency(InVariableBase* variable);
    virtual const char* getName() const;

    // The types of the packages this one needs, as declared.
    const Vector<const std::type_info*>& getDependencies() const { return _dependencies; }
    const Vector<InVariableBase*>& getVariables() const { return _variables; }

    // Initialises the variables in order, then performInitialize(), then tells the
    // package it is initialised. Called by the manager.
    void initialize();
    // Tells the package it is no longer initialised, then performFinalize(), then
    // finalises the variables in reverse order. Called by the manager.
    void finalize();

  protected:
    virtual void performInitialize() = 0;
    virtual void performFinalize() = 0;
    // Told true after a successful initialisation and false before finalisation.
    virtual void setState(bool initialized) = 0;

    // Declares that the package of the given type must be initialised first. A
    // package that is already initialised cannot hold this one back, so a
    // dependency on one is not recorded.
    void addDependency(const std::type_info& package);
    // Hands the package to the manager.
    void registerPackage();

  private:
    // Writes the indentation of the start-up trace (one blank per declared
    // dependency) and "InInit<name>::<operation>" on the standard error stream.
    void traceOperation(const char* operation) const;

    char _name[NameSize];
    Vector<const std::type_info*> _dependencies;
    Vector<InVariableBase*> _variables;
};

}  // namespace Qn
