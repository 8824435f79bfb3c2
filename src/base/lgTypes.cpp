#include <base/lgTypes.h>

#include <cstring>

#include <base/assertions.h>
#include <base/lgEx.h>

namespace Qn {

namespace {

const char* const levelNames[LgTypes::NUM_LEVELS] = {
    "Internal Error", "Fatal Error", "Error", "Warning", "Informational", "Tracing", "Profiling",
};

}  // namespace

const char* LgTypes::getLevelName(Level l) {
    QN_ASSERT_TEXT(l < NUM_LEVELS, "l < NUM_LEVELS");
    return levelNames[l];
}

LgTypes::Level LgTypes::getLevelFromName(const char* s) {
    QN_ASSERT(s);
    for (uint32_t l = 0; l < NUM_LEVELS; ++l) {
        if (std::strcmp(s, levelNames[l]) == 0) return static_cast<Level>(l);
    }
    throw LgEx::InvalidLevelString(__FILE__, __LINE__, s);
}

}  // namespace Qn
