#include <base/dbgBuildInfo.h>

#include <cstdio>
#include <cstring>

namespace Qn {

namespace {

// Whether the parts make a date and time; leap days are not checked.
bool isDateTime(int year, int month, int day, int hour, int minute, int second) {
    return year >= 1970 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 && day <= 31 &&
           hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 60;
}

// The month of a three-letter English name, or 0.
int monthOf(const char* name) {
    static const char Months[] = "JanFebMarAprMayJunJulAugSepOctNovDec";
    for (int month = 0; month < 12; ++month)
        if (std::strncmp(name, Months + 3 * month, 3) == 0) return month + 1;
    return 0;
}

}  // namespace

DbgBuildInfo::DbgBuildInfo(const char* name, DbgVersion version, const char* stamp,
                           DbgVersion baseVersion, Kind kind)
    : _name(name != nullptr ? name : ""),
      _version(version),
      _stamp(stamp != nullptr ? stamp : ""),
      _baseVersion(baseVersion),
      _kind(kind) {}

int64_t DbgBuildInfo::parseStamp(const char* stamp) {
    if (stamp == nullptr) return -1;
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, end = -1;
    char monthName[4] = "";
    if (std::sscanf(stamp, "%4d-%2d-%2d %2d:%2d:%2d%n", &year, &month, &day, &hour, &minute,
                    &second, &end) != 6 &&
        std::sscanf(stamp, "%3[A-Za-z] %2d %4d %2d:%2d:%2d%n", monthName, &day, &year, &hour,
                    &minute, &second, &end) == 6) {
        month = monthOf(monthName);
    }
    if (end < 0 || stamp[end] != '\0' || !isDateTime(year, month, day, hour, minute, second))
        return -1;
    return ((((year * 100LL + month) * 100 + day) * 100 + hour) * 100 + minute) * 100 + second;
}

std::string DbgBuildInfo::describeBuild() const { return _name + " (built " + _stamp + ")"; }

}  // namespace Qn
