#include <base/inInitMgr.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <iostream>
#include <typeindex>

#include <base/assertions.h>
#include <base/dbgTypeName.h>
#include <base/inContextAliasMgrBase.h>
#include <base/inEx.h>
#include <base/inVariableBase.h>

namespace Qn {

namespace {

// Restores a flag to the value it had when the guard was made.
class FlagGuard {
  public:
    FlagGuard(bool& flag, bool value) : _flag(flag), _old(flag) { _flag = value; }
    ~FlagGuard() { _flag = _old; }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;

  private:
    bool& _flag;
    bool _old;
};

}  // namespace

InInitMgr& InInitMgr::getInstance() {
    static InInitMgr manager;
    return manager;
}

InInitMgr::InInitMgr() {
    // Made by the first package to register, during static construction, when
    // the standard streams may not be set up yet.
    static const std::ios_base::Init streams;
    takeEnvironmentSnapshot();
}

InInitMgr::~InInitMgr() = default;

void InInitMgr::takeEnvironmentSnapshot() {
    for (const std::string& entry : performReadEnvironment()) {
        const size_t equals = entry.find('=');
        if (equals == std::string::npos) {
            std::cerr << "Skipping over Environment Variable: " << entry << std::endl;
            continue;
        }
        _environment[entry.substr(0, equals)] = entry.substr(equals + 1);
    }
}

const char* InInitMgr::getEnv(const char* name) {
    if (!name) return nullptr;
    const auto& environment = getInstance()._environment;
    const auto it = environment.find(name);
    return it == environment.end() ? nullptr : it->second.c_str();
}

bool InInitMgr::isDebugging() { return getEnv("QN_DEBUG_INITIALIZE") != nullptr; }

void InInitMgr::initialize(int& argc, const char* const*& argv) {
    auto& args = InContextAliasMgrBase::args();
    for (int i = 0; i < argc && argv; ++i) args.emplace_back(argv[i] ? argv[i] : "");
    argc = 0;
    argv = nullptr;
    runPass();
}

void InInitMgr::initialize(int& argc, char**& argv) {
    const char* const* arguments = argv;
    argv = nullptr;
    initialize(argc, arguments);
}

void InInitMgr::registerPackage(InPackageInit* package) {
    if (_initialized && _reinitCount == 0) QN_THROW(InEx::ExReinitWithoutGuard);
    const std::type_info& type = typeid(*package);
    if (isPackageInitialized(type)) return;
    _waiting.push_back(Entry{package, &type, 0, false});
}

InInitMgr::Entry* InInitMgr::findSaved(const std::type_info& type) {
    for (Entry& entry : _saved)
        if (*entry.type == type) return &entry;
    return nullptr;
}

const InInitMgr::Entry* InInitMgr::findSaved(const std::type_info& type) const {
    return const_cast<InInitMgr*>(this)->findSaved(type);
}

bool InInitMgr::isPackageInitialized(const std::type_info& type) const {
    const Entry* saved = findSaved(type);
    return saved && saved->initialized;
}

void InInitMgr::runPass() {
    _initialized = true;
    while (!_waiting.empty()) {
        _packagesToInit = std::move(_waiting);
        _waiting.clear();
        orderPass();
        initializePass();
        _packagesToInit.clear();
    }
}

void InInitMgr::orderPass() {
    auto& list = _packagesToInit;
    // One package per type: the first registered of each type is kept.
    std::stable_sort(list.begin(), list.end(),
                     [](const Entry& a, const Entry& b) { return a.type->before(*b.type); });
    list.erase(std::unique(list.begin(), list.end(),
                           [](const Entry& a, const Entry& b) { return *a.type == *b.type; }),
               list.end());
    std::stable_sort(list.begin(), list.end(), [](const Entry& a, const Entry& b) {
        return std::strcmp(a.package->getName(), b.package->getName()) < 0;
    });
    if (isDebugging()) traceList();

    buildMatrix();
    std::vector<uint32_t> counts(list.size());
    for (size_t i = 0; i < list.size(); ++i) counts[i] = list[i].count;
    _cycle = _matrix.close(counts);
    for (size_t i = 0; i < list.size(); ++i) list[i].count = counts[i];
    if (_cycle) QN_THROW(InEx::ExDependencyCycle);

    // A package needs strictly more packages than each package it needs, so the
    // ascending count is an order of initialisation; equal counts keep name order.
    std::stable_sort(list.begin(), list.end(),
                     [](const Entry& a, const Entry& b) { return a.count < b.count; });
}

void InInitMgr::traceList() const {
    std::cerr << "-->_nbPckgs:" << _packagesToInit.size() << std::endl;
    for (size_t i = 0; i < _packagesToInit.size(); ++i)
        std::cerr << "_packagesToInit[" << i << "]: " << _packagesToInit[i].package->getName()
                  << std::endl;
}

void InInitMgr::buildMatrix() {
    auto& list = _packagesToInit;
    const int n = static_cast<int>(list.size());
    _matrix.reset(n);
    std::map<std::type_index, int> indexOfType;
    for (int j = 0; j < n; ++j) indexOfType.emplace(*list[j].type, j);
    for (int i = 0; i < n; ++i) {
        for (const std::type_info* dependency : list[i].package->getDependencies()) {
            const auto found = indexOfType.find(*dependency);
            if (found == indexOfType.end()) {
                const std::string name = DbgTypeName::demangle(*dependency);
                QN_THROW(InEx::ExPackageNotRegistered, name.c_str());
            }
            _matrix.set(i, found->second);
            ++list[i].count;
        }
    }
}

void InInitMgr::initializePass() {
    for (const Entry& entry : _packagesToInit)
        if (!findSaved(*entry.type)) _saved.push_back(entry);
    FlagGuard initializing(_initializing, true);
    for (const Entry& entry : _packagesToInit) {
        entry.package->initialize();
        findSaved(*entry.type)->initialized = true;
    }
}

void InInitMgr::finalize() {
    InVariableBase::clearPendingOverrides();
    InContextAliasMgrBase::args().clear();
    QN_ASSERT_TEXT(InContextAliasMgrBase::args().size() == 0,
                   "InContextAliasMgrBase::args().size() == 0");
    if (!_initialized) QN_THROW(InEx::ExFinaliseBeforeInit);
    if (_finalized) QN_THROW(InEx::ExDoubleFinalise);

    std::exception_ptr firstFailure;
    {
        FlagGuard finalizing(_finalizing, true);
        for (auto it = _saved.rbegin(); it != _saved.rend(); ++it) {
            if (!it->initialized) continue;
            try {
                it->package->finalize();
            } catch (...) {
                if (!firstFailure) firstFailure = std::current_exception();
            }
            it->initialized = false;
        }
    }
    _saved.clear();
    _finalized = true;
    if (firstFailure) std::rethrow_exception(firstFailure);
}

std::ostream& InInitMgr::reportCycles(std::ostream& out) const {
    if (!_cycle) return out << "No dependency cycles to report." << std::endl;
    const int n = _matrix.size();
    std::vector<bool> marked(static_cast<size_t>(n), false);
    for (int i = 0; i < n; ++i) {
        if (marked[i] || !_matrix.test(i, i)) continue;
        marked[i] = true;
        out << "'" << _packagesToInit[i].package->getName() << "' is in a cycle with:" << std::endl;
        for (int j = i + 1; j < n; ++j) {
            if (!_matrix.test(i, j) || !_matrix.test(j, j)) continue;
            marked[j] = true;
            out << "\t'" << _packagesToInit[j].package->getName() << "'" << std::endl;
        }
    }
    return out;
}

void InInitMgr::dumpList(std::ostream& out, const Vector<Entry>& list, const char* none,
                         const char* heading) {
    if (list.empty()) {
        out << none << std::endl;
        return;
    }
    out << list.size() << heading << std::endl;
    for (const Entry& entry : list) {
        out << "\t'" << entry.package->getName() << "' ";
        if (entry.initialized)
            out << "Initialized (" << entry.count << " dependencies)";
        else
            out << "Not initialized";
        out << std::endl;
    }
}

std::ostream& InInitMgr::dump(std::ostream& out) const {
    dumpList(out, _waiting, "No packages waiting to be initialize.",
             " packages waiting to be initialize:");
    dumpList(out, _saved, "No packages saved.", " packages currently saved:");
    if (_cycle) {
        out << "Dependency cycle(s) detected..." << std::endl;
        reportCycles(out);
    }
    return out;
}

std::ostream& operator<<(std::ostream& out, const InInitMgr& manager) { return manager.dump(out); }

}  // namespace Qn
