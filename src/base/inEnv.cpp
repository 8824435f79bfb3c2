#include <base/inEnv.h>

#include <base/inInitMgr.h>
#include <base/inValueText.h>

namespace Qn {

bool InEnv::isSet(const char* name) { return InInitMgr::getEnv(name) != nullptr; }

const char* InEnv::getText(const char* name, const char* fallback) {
    const char* value = InInitMgr::getEnv(name);
    return value ? value : fallback;
}

int InEnv::getInt(const char* name, int fallback) {
    const char* value = InInitMgr::getEnv(name);
    return value ? InValueText::toInt(value) : fallback;
}

bool InEnv::getBool(const char* name, bool fallback) {
    const char* value = InInitMgr::getEnv(name);
    return value ? InValueText::toBool(value) : fallback;
}

}  // namespace Qn
