#include <base/lgMajorGroup.h>

#include <algorithm>
#include <cstring>
#include <iomanip>
#include <iostream>
#include <map>
#include <string>

#include <base/arrayPtr.h>
#include <base/assertions.h>
#include <base/lgEx.h>
#include <base/list.h>
#include <base/objPtr.h>

namespace Qn {

namespace {

constexpr uint32_t ProfilingBit = 0x02;

constexpr uint32_t levelMasks[LgTypes::NUM_LEVELS] = {0x80, 0xC0, 0xE0, 0xF0, 0xF8, 0xFC, 0x02};

struct ByteLess {
    bool operator()(const char* a, const char* b) const { return std::strcmp(a, b) < 0; }
};

// The registry: the owned name copies, in order of first request, and the
// groups keyed by pointers into those copies. Map nodes never move, so a group's
// address is stable until finalize.
ObjPtr<List<ArrayPtr<char>>> names;
ObjPtr<std::map<const char*, LgMajorGroup, ByteLess>> majorGroups;

LgTypes::Level defaultThreshold = LgTypes::Warning;

void checkInitialized() {
    QN_ASSERT(names);
    QN_ASSERT(majorGroups);
}

void checkLevel(LgTypes::Level l) { QN_ASSERT_TEXT(l < LgTypes::NUM_LEVELS, "l < NUM_LEVELS"); }

// The standard tokeniser's rule without its hidden state: skips leading
// delimiters, cuts the token at the next delimiter and moves *next past it.
// Null when only delimiters are left.
char* nextToken(char** next, const char* delimiters) {
    char* start = *next + std::strspn(*next, delimiters);
    if (*start == '\0') {
        *next = start;
        return nullptr;
    }
    char* end = start + std::strcspn(start, delimiters);
    *next = *end != '\0' ? end + 1 : end;
    *end = '\0';
    return start;
}

}  // namespace

LgMajorGroup::LgMajorGroup() : _mask(levelMasks[defaultThreshold]) {}

void LgMajorGroup::initialize(const char* spec) {
    QN_ASSERT(!names);
    QN_ASSERT(!majorGroups);
    names = std::make_unique<List<ArrayPtr<char>>>();
    majorGroups = std::make_unique<std::map<const char*, LgMajorGroup, ByteLess>>();
    if (spec) parse(spec);
}

void LgMajorGroup::finalize() {
    checkInitialized();
    majorGroups.reset();
    names.reset();
}

bool LgMajorGroup::isInitialized() { return names != nullptr; }

void LgMajorGroup::parse(const char* spec) {
    checkInitialized();
    std::string copy(spec);
    char* next = copy.data();
    for (char* group = nextToken(&next, "="); group; group = nextToken(&next, "=")) {
        const char* levelName = nextToken(&next, ",");
        try {
            const LgTypes::Level level = LgTypes::getLevelFromName(levelName);
            getInstanceForName(group).setLogThreshold(level, false);
        } catch (const LgEx::InvalidLevelString& bad) {
            std::cout << bad.what() << std::endl;
        }
    }
}

LgMajorGroup& LgMajorGroup::getInstanceForName(const char* name) {
    checkInitialized();
    QN_ASSERT(name);
    auto stored = std::find_if(names->begin(), names->end(), [name](const ArrayPtr<char>& copy) {
        return std::strcmp(copy.get(), name) == 0;
    });
    if (stored == names->end()) {
        const size_t size = std::strlen(name) + 1;
        ArrayPtr<char> copy(new char[size]);
        std::memcpy(copy.get(), name, size);
        stored = names->insert(names->end(), std::move(copy));
    }
    return majorGroups->try_emplace(stored->get()).first->second;
}

void LgMajorGroup::printAll(std::ostream& out) {
    checkInitialized();
    out << "Major Groups:\n";
    const std::ios::fmtflags flags = out.flags();
    for (const auto& [name, group] : *majorGroups) {
        out << std::right << std::setw(24) << name << ' ';
        printLevels(out, group.getLogLevels());
        out << '\n';
    }
    out.flags(flags);
}

void LgMajorGroup::printLevels(std::ostream& out, uint32_t mask) {
    for (int l = LgTypes::Tracing; l >= int{LgTypes::FatalError}; --l) {
        if (levelMasks[l] & mask) {
            out << LgTypes::getLevelName(static_cast<LgTypes::Level>(l));
            break;
        }
    }
    if (mask & ProfilingBit) out << ", " << LgTypes::getLevelName(LgTypes::Profiling);
}

void LgMajorGroup::setDefaultThreshold(LgTypes::Level l) {
    checkLevel(l);
    defaultThreshold = std::max(l, LgTypes::FatalError);
}

LgTypes::Level LgMajorGroup::getDefaultThreshold() { return defaultThreshold; }

uint32_t LgMajorGroup::getLevelMask(LgTypes::Level l) {
    checkLevel(l);
    return levelMasks[l];
}

void LgMajorGroup::setLogThreshold(LgTypes::Level l, bool clearProfiling) {
    checkLevel(l);
    if (l == LgTypes::Profiling) {
        _mask.fetch_or(ProfilingBit, std::memory_order_relaxed);
        return;
    }
    const uint32_t keep = clearProfiling ? 0 : ProfilingBit;
    const uint32_t severity = levelMasks[std::max(l, LgTypes::FatalError)];
    uint32_t old = _mask.load(std::memory_order_relaxed);
    while (!_mask.compare_exchange_weak(old, severity | (old & keep), std::memory_order_relaxed)) {
    }
}

}  // namespace Qn
