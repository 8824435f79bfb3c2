// Qn::OsDateUtil: conversion of calendar fields to the library's date record.
#pragma once

#include <base/osDateTypes.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsDateUtil {
  public:
    // The record of a local calendar moment: year 1 to 9999, month 1 to 12, a
    // day of that month, hour 0 to 23, minute 0 to 59, second 0 to 60 (a leap
    // second). Raises OsDateEx::ExInvalidDate, quoting the fields as
    // "yyyy-mm-dd hh:mm:ss", for any field out of its range.
    static OsDateTypes::DateRep makeTime(int year, int month, int day, int hour, int minute,
                                         int second);

    // Days of month (1 to 12) in year, leap years counted.
    static int getDaysInMonth(int year, int month);
};

}  // namespace Qn
