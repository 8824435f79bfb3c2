// Qn::InInit<Tag>: the concrete package of a module, one class per tag type of
// the namespace QnInit. The tag only names the package.
//
// A module declares its package in a header, so that others can depend on it,
// and defines it in one source file with its start-up and shutdown work:
//
//   // fooPackage.h
//   QN_DECLARE_PACKAGE(FOO_API, foo)
//
//   // fooPackage.cpp
//   template class Qn::InInit<QnInit::foo>;
//   static Qn::InInit<QnInit::foo> fooPackage(
//       "foo", Qn::InPackageDeps<QnInit::initialize, QnInit::logger>{},
//       [] { Foo::start(); }, [] { Foo::stop(); });
//
// Start-up work belongs in the initialise hook, never in static constructors.
#pragma once

#include <typeinfo>

#include <base/inPackageInit.h>

namespace Qn {

// The packages a package needs, named by their tags.
template <class... Tags>
struct InPackageDeps {};

template <class Tag>
class InInit : public InPackageInit {
  public:
    using Hook = void (*)();

    // Stores the name, declares one dependency per tag of deps, keeps the hooks
    // that performInitialize() and performFinalize() call (either may be null),
    // and registers the package with the manager.
    template <class... DepTags>
    explicit InInit(const char* name, InPackageDeps<DepTags...> deps = {},
                    Hook initialize = nullptr, Hook finalize = nullptr);

    // Whether the package of this tag is initialised.
    static bool isInitialized() { return _isInitialized; }
    // The type by which other packages name this one as a dependency.
    static const std::type_info& getType() { return typeid(InInit<Tag>); }

  protected:
    void performInitialize() override {
        if (_initialize) _initialize();
    }
    void performFinalize() override {
        if (_finalize) _finalize();
    }
    void setState(bool initialized) override { _isInitialized = initialized; }

  private:
    static bool _isInitialized;
    Hook _initialize;
    Hook _finalize;
};

template <class Tag>
bool InInit<Tag>::_isInitialized = false;

template <class Tag>
template <class... DepTags>
InInit<Tag>::InInit(const char* name, InPackageDeps<DepTags...>, Hook initialize, Hook finalize)
    : InPackageInit(name), _initialize(initialize), _finalize(finalize) {
    (addDependency(InInit<DepTags>::getType()), ...);
    registerPackage();
}

}  // namespace Qn

// Declares the tag QnInit::Tag and its package, for use at global scope in a
// header. Api is the export macro of the library whose source file instantiates
// the package ("template class Qn::InInit<QnInit::Tag>;").
#define QN_DECLARE_PACKAGE(Api, Tag)               \
    namespace QnInit {                             \
    class Tag;                                     \
    }                                              \
    namespace Qn {                                 \
    extern template class Api InInit<QnInit::Tag>; \
    }
