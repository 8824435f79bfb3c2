#include <base/lgConfig.h>

#include <base/assertions.h>
#include <base/inInitMgr.h>
#include <base/lgEx.h>

namespace Qn {

namespace {

const char* const levelVariables[LgTypes::NUM_LEVELS] = {
    "QN_LOG_INTERNAL_ERROR", "QN_LOG_FATAL_ERROR", "QN_LOG_RECOVERABLE_ERROR", "QN_LOG_WARNING",
    "QN_LOG_INFORMATIONAL",  "QN_LOG_TRACING",     "QN_LOG_PROFILING",
};

// The destination of a level whose variable is not set.
LgConfig::Destination defaultDestination(LgTypes::Level l) {
    LgConfig::Destination d;
    d.enabled = true;
    d.echo = l == LgTypes::Tracing;
    d.needsLogDirectory = l == LgTypes::InternalError || l == LgTypes::Profiling;
    if (l != LgTypes::Tracing) {
        d.file = l == LgTypes::Profiling ? "prof.log" : "events.log";
        d.inLogDirectory = true;
    }
    return d;
}

}  // namespace

LgConfig::LgConfig() {
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        levels[l] = defaultDestination(static_cast<LgTypes::Level>(l));
    }
}

LgConfig::Destination LgConfig::parseDestination(const char* value) {
    QN_ASSERT(value);
    Destination d;
    if (value[0] == '-' && value[1] == '-') return d;
    d.enabled = true;
    const char* name = value;
    if (*name == '%' || *name == '+') {
        d.echo = *name == '%';
        d.append = *name == '+';
        if (*++name == '+') {
            d.append = true;
            ++name;
        }
    }
    d.file = name;
    return d;
}

LgConfig LgConfig::read(const Lookup& variable) {
    LgConfig config;
    if (const char* directory = variable("S2M_TEST_DIR")) config.logDirectory = directory;
    for (uint32_t l = 0; l < LgTypes::NUM_LEVELS; ++l) {
        const char* value = variable(levelVariables[l]);
        if (value && *value) config.levels[l] = parseDestination(value);
    }
    if (const char* name = variable("QN_LOG_DEFAULT_LEVEL")) {
        try {
            config.defaultLevel = LgTypes::getLevelFromName(name);
        } catch (const LgEx::InvalidLevelString&) {
            // An unknown name keeps the current default.
        }
    }
    if (const char* groups = variable("QN_LOG_GROUPS")) config.groups = groups;
    config.blockingTrace = variable("QN_BLOCKING_TRACE") != nullptr;
    if (const char* name = variable("QN_INTERNAL_INTERPROCESS_LOG_LOCK")) config.lockName = name;
    config.timeStamps = variable("QN_LOG_DISABLE_TIMESTAMPS") == nullptr;
    return config;
}

LgConfig LgConfig::fromEnvironment() { return read(&InInitMgr::getEnv); }

}  // namespace Qn
