// Qn::InVariableBase: a named configuration value of a package, settled once,
// when its package initialises, from up to ten context aliases or from an
// override a program registered under its handle beforehand.
//
// The aliases are kept by priority, highest first (among equals, the one given
// first): override, then command-line option, then environment, then default.
// The first alias that holds a value is chosen; with none the variable has no
// value and reading it raises InEx::ExUninitializedObject. Typed reading is in
// InVariable<T> (inVariable.h).
//
// Not thread-safe: variables are made with static objects and initialised on the
// start-up thread. A variable must be made after its package: define both in one
// source file, the package first.
#pragma once

#include <string>

#include <base/inContextAliasDummy.h>
#include <base/objPtr.h>
#include <base/vector.h>

namespace Qn {

class InPackageInit;

class QN_BASE_API InVariableBase {
  public:
    // The alias of unused slots.
    static const InContextAliasDummy _dummy;

    // Registers the handle (InEx::ExHandleAlreadyInUse when it is taken), keeps
    // copies of the aliases and joins the package's variables.
    InVariableBase(
        const char* handle, InPackageInit& package, const InContextAliasBase& alias0 = _dummy,
        const InContextAliasBase& alias1 = _dummy, const InContextAliasBase& alias2 = _dummy,
        const InContextAliasBase& alias3 = _dummy, const InContextAliasBase& alias4 = _dummy,
        const InContextAliasBase& alias5 = _dummy, const InContextAliasBase& alias6 = _dummy,
        const InContextAliasBase& alias7 = _dummy, const InContextAliasBase& alias8 = _dummy,
        const InContextAliasBase& alias9 = _dummy);
    virtual ~InVariableBase();

    InVariableBase(const InVariableBase&) = delete;
    InVariableBase& operator=(const InVariableBase&) = delete;

    // Chooses the value; called by the package before its start-up work.
    virtual void initialize();
    // Forgets the value; called after the package's shutdown work.
    virtual void finalize();

    bool isValid() const { return _contextAlias != nullptr; }
    const char* getHandle() const { return _handle.c_str(); }
    // The source of the chosen alias ("Qn::InContextAlias<Qn::InInitArg, 1>"),
    // or null.
    const char* initSource() const;

    // Registers an override for the variable of handle, to be used when it
    // initialises. Raises InEx::ExVariableAlreadyInitialized when that variable
    // is live and initialised already.
    static void overrideViaHandle(const char* handle, const char* value, const char* description);
    // The live variable of handle, or null.
    static InVariableBase* queryViaHandle(const char* handle);
    // Whether an override waits for handle.
    static bool isOverridden(const char* handle);
    // Discards every pending override (reporting each when QN_DEBUG_INITIALIZE is
    // set); called by InInitMgr::finalize().
    static void clearPendingOverrides();

  protected:
    // The chosen text converted (see InVariable<T>); each raises
    // InEx::ExUninitializedObject with the handle when there is none.
    int readInt() const;
    bool readBool() const;
    const char* readText() const;

  private:
    void addAlias(ObjPtr<InContextAliasBase> alias);
    const char* chosenText(const char* fileName, int lineNo) const;

    std::string _handle;
    InPackageInit& _package;
    Vector<ObjPtr<InContextAliasBase>> _aliases;
    const InContextAliasBase* _contextAlias = nullptr;
    bool _isInitialized = false;
};

}  // namespace Qn
