#include <base/dbgBuildInfoRegistry.h>

#include <cstring>
#include <ostream>

#include <base/dbgBuildInfoEx.h>
#include <base/inEnv.h>

namespace Qn {

namespace {

// The first entry of a registry that breaks a naming or version rule.
void checkNamesAndVersions(const Vector<DbgBuildInfo>& entries) {
    const DbgBuildInfo* application = nullptr;
    for (size_t i = 0; i < entries.size(); ++i) {
        const DbgBuildInfo& entry = entries[i];
        if (entry.getName()[0] == '\0')
            throw DbgBuildInfoEx::ExInvalidName(__FILE__, __LINE__, entry.getName());
        for (const DbgVersion& version : {entry.getVersion(), entry.getBaseVersion()}) {
            if (!version.isValid()) {
                throw DbgBuildInfoEx::ExInvalidVersion(__FILE__, __LINE__, entry.getName(),
                                                       version.toString().c_str());
            }
        }
        for (size_t j = 0; j < i; ++j) {
            if (std::strcmp(entries[j].getName(), entry.getName()) == 0)
                throw DbgBuildInfoEx::ExDuplicateLibrary(__FILE__, __LINE__, entry.getName());
        }
        if (entry.getKind() == DbgBuildInfo::Application) {
            if (application != nullptr) {
                throw DbgBuildInfoEx::ExDuplicateApplication(
                    __FILE__, __LINE__, application->getName(), entry.getName());
            }
            application = &entry;
        }
    }
}

void checkCompatibility(const Vector<DbgBuildInfo>& entries) {
    const DbgVersion loaded = entries.front().getVersion();
    for (const DbgBuildInfo& entry : entries) {
        if (!entry.getBaseVersion().isCompatibleWith(loaded)) {
            const std::string versions =
                entry.getBaseVersion().toString() + " but " + loaded.toString() + " is loaded";
            throw DbgBuildInfoEx::ExVersionMismatch(__FILE__, __LINE__, entry.getName(),
                                                    versions.c_str());
        }
    }
}

[[noreturn]] void throwStale(const DbgBuildInfo& older, const DbgBuildInfo& newer) {
    throw DbgBuildInfoEx::ExStaleBuild(__FILE__, __LINE__, older.describeBuild().c_str(),
                                       newer.describeBuild().c_str());
}

// Libraries are not older than libQNbase (the first entry), and the application
// is not older than any library.
void checkBuildOrder(const Vector<DbgBuildInfo>& entries) {
    for (const DbgBuildInfo& entry : entries) {
        if (entry.getStampValue() < 0) {
            throw DbgBuildInfoEx::ExInvalidStamp(__FILE__, __LINE__, entry.getName(),
                                                 entry.getStamp());
        }
    }
    const DbgBuildInfo& base = entries.front();
    for (const DbgBuildInfo& entry : entries) {
        if (entry.getStampValue() < base.getStampValue()) throwStale(entry, base);
        if (entry.getKind() != DbgBuildInfo::Application) continue;
        for (const DbgBuildInfo& library : entries) {
            if (library.getKind() == DbgBuildInfo::Library &&
                entry.getStampValue() < library.getStampValue())
                throwStale(entry, library);
        }
    }
}

}  // namespace

DbgBuildInfoRegistry& DbgBuildInfoRegistry::getInstance() {
    static DbgBuildInfoRegistry registry(
        DbgBuildInfo("libQNbase", QN_BASE_VERSION, QN_BUILD_STAMP, QN_BASE_VERSION));
    return registry;
}

DbgBuildInfoRegistry::DbgBuildInfoRegistry(const DbgBuildInfo& base) : _entries{base} {}

void DbgBuildInfoRegistry::add(const DbgBuildInfo& info) {
    std::lock_guard<std::mutex> lock(_mutex);
    _entries.push_back(info);
}

bool DbgBuildInfoRegistry::remove(const char* name) {
    std::lock_guard<std::mutex> lock(_mutex);
    for (size_t i = _entries.size(); i-- > 1;) {
        if (name != nullptr && std::strcmp(_entries[i].getName(), name) == 0) {
            _entries.erase(_entries.begin() + static_cast<ptrdiff_t>(i));
            return true;
        }
    }
    return false;
}

Vector<DbgBuildInfo> DbgBuildInfoRegistry::getEntries() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _entries;
}

std::optional<DbgBuildInfo> DbgBuildInfoRegistry::find(const char* name) const {
    const Vector<DbgBuildInfo> entries = getEntries();
    for (size_t i = entries.size(); i-- > 0;) {
        if (name != nullptr && std::strcmp(entries[i].getName(), name) == 0) return entries[i];
    }
    return std::nullopt;
}

void DbgBuildInfoRegistry::validate(bool checkStamps) const {
    const Vector<DbgBuildInfo> entries = getEntries();
    checkNamesAndVersions(entries);
    checkCompatibility(entries);
    if (checkStamps) checkBuildOrder(entries);
}

void DbgBuildInfoRegistry::printRegistered(std::ostream& stream) const {
    stream << "Registered versioned libraries:\n";
    for (const DbgBuildInfo& entry : getEntries()) {
        stream << "  " << entry.getName() << " " << entry.getVersion().toString()
               << (entry.getKind() == DbgBuildInfo::Application ? " application" : "") << " built "
               << entry.getStamp() << " against libQNbase " << entry.getBaseVersion().toString()
               << "\n";
    }
}

void DbgBuildInfoRegistry::initialize() {
    if (InEnv::getBool("QN_BUILDINFO_NO_VALIDATE", false)) return;
    getInstance().validate(InEnv::getBool("QN_BUILDINFO_CHECK_STAMPS", false));
}

void DbgBuildInfoRegistry::printLoadedLibraries(std::ostream& stream) {
    stream << "Loaded Libraries:\n";
    for (const std::string& path : performGetLoadedLibraries()) stream << "  " << path << "\n";
}

void DbgBuildInfoRegistry::dumpLibs(std::ostream& stream) {
    printLoadedLibraries(stream);
    getInstance().printRegistered(stream);
}

}  // namespace Qn
