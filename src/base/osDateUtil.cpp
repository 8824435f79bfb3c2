#include <base/osDateUtil.h>

#include <cstdio>

#include <base/assertions.h>
#include <base/osDateEx.h>

namespace Qn {

int OsDateUtil::getDaysInMonth(int year, int month) {
    QN_ASSERT(month >= 1 && month <= 12);
    static const int days[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return days[month - 1] + (month == 2 && leap ? 1 : 0);
}

OsDateTypes::DateRep OsDateUtil::makeTime(int year, int month, int day, int hour, int minute,
                                          int second) {
    bool valid = year >= 1 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
                 day <= getDaysInMonth(year, month) && hour >= 0 && hour <= 23 && minute >= 0 &&
                 minute <= 59 && second >= 0 && second <= 60;
    if (!valid) {
        char fields[96];
        std::snprintf(fields, sizeof fields, "%04d-%02d-%02d %02d:%02d:%02d", year, month, day,
                      hour, minute, second);
        QN_THROW(OsDateEx::ExInvalidDate, fields);
    }
    OsDateTypes::DateRep rep;
    rep._date = year * 10000 + month * 100 + day;
    rep._time = hour * 10000 + minute * 100 + second;
    return rep;
}

}  // namespace Qn
