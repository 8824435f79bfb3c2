// Qn::OsDateTypes: the calendar time record of the file layer.
//
// DateRep keeps the local calendar fields of a moment in two 32-bit numbers:
// the date as yyyymmdd and the time of day as hhmmss, so that records order as
// the moments they stand for. A record that was never filled holds -1 in both
// and answers -1 to every accessor. Records are built by OsDateUtil::makeTime.
#pragma once

#include <cstdint>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsDateTypes {
  public:
    class DateRep {
      public:
        // A record not filled yet.
        DateRep() = default;

        bool isSet() const { return _date >= 0; }
        int getYear() const { return isSet() ? _date / 10000 : -1; }
        int getMonth() const { return isSet() ? _date / 100 % 100 : -1; }  // 1 to 12
        int getDay() const { return isSet() ? _date % 100 : -1; }          // 1 to 31
        int getHour() const { return isSet() ? _time / 10000 : -1; }       // 0 to 23
        int getMinute() const { return isSet() ? _time / 100 % 100 : -1; }
        int getSecond() const { return isSet() ? _time % 100 : -1; }  // 0 to 60

        bool operator==(const DateRep& other) const = default;
        bool operator<(const DateRep& other) const {
            return _date != other._date ? _date < other._date : _time < other._time;
        }

      private:
        friend class OsDateUtil;
        int32_t _date = -1;  // yyyymmdd
        int32_t _time = -1;  // hhmmss
    };
};

}  // namespace Qn
