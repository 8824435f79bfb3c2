#include <base/osDateUtil.h>

#include <gtest/gtest.h>

#include <string>

#include <base/osDateEx.h>

TEST(OsDateUtil, RecordsKeepTheCalendarFieldsAndTheirOrder) {
    Qn::OsDateTypes::DateRep unset;
    EXPECT_FALSE(unset.isSet());
    EXPECT_EQ(unset.getYear(), -1);
    EXPECT_EQ(unset.getSecond(), -1);

    const struct {
        int year, month, day, hour, minute, second;
    } rows[] = {{1, 1, 1, 0, 0, 0},
                {1970, 1, 1, 0, 0, 0},
                {2000, 2, 29, 12, 30, 15},
                {2024, 2, 29, 23, 59, 60},
                {9999, 12, 31, 23, 59, 59}};
    Qn::OsDateTypes::DateRep previous;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.year);
        auto date = Qn::OsDateUtil::makeTime(row.year, row.month, row.day, row.hour, row.minute,
                                             row.second);
        EXPECT_TRUE(date.isSet());
        EXPECT_EQ(date.getYear(), row.year);
        EXPECT_EQ(date.getMonth(), row.month);
        EXPECT_EQ(date.getDay(), row.day);
        EXPECT_EQ(date.getHour(), row.hour);
        EXPECT_EQ(date.getMinute(), row.minute);
        EXPECT_EQ(date.getSecond(), row.second);
        EXPECT_TRUE(previous < date);
        EXPECT_FALSE(date < date);
        previous = date;
    }
    EXPECT_TRUE(Qn::OsDateUtil::makeTime(2020, 5, 1, 10, 0, 0) <
                Qn::OsDateUtil::makeTime(2020, 5, 1, 10, 0, 1));
    EXPECT_EQ(Qn::OsDateUtil::makeTime(2020, 5, 1, 10, 0, 0),
              Qn::OsDateUtil::makeTime(2020, 5, 1, 10, 0, 0));
}

TEST(OsDateUtil, FieldsOutOfRangeAreRefused) {
    const struct {
        int year, month, day, hour, minute, second;
        const char* quoted;
    } rows[] = {
        {0, 1, 1, 0, 0, 0, "0000-01-01 00:00:00"},
        {10000, 1, 1, 0, 0, 0, "10000-01-01 00:00:00"},
        {2023, 13, 1, 0, 0, 0, "2023-13-01 00:00:00"},
        {2023, 0, 1, 0, 0, 0, "2023-00-01 00:00:00"},
        {2023, 2, 29, 0, 0, 0, "2023-02-29 00:00:00"},
        {1900, 2, 29, 0, 0, 0, "1900-02-29 00:00:00"},
        {2023, 4, 31, 0, 0, 0, "2023-04-31 00:00:00"},
        {2023, 1, 0, 0, 0, 0, "2023-01-00 00:00:00"},
        {2023, 1, 1, 24, 0, 0, "2023-01-01 24:00:00"},
        {2023, 1, 1, 0, 60, 0, "2023-01-01 00:60:00"},
        {2023, 1, 1, 0, 0, 61, "2023-01-01 00:00:61"},
        {2023, 1, 1, -1, 0, 0, "2023-01-01 -1:00:00"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.quoted);
        try {
            Qn::OsDateUtil::makeTime(row.year, row.month, row.day, row.hour, row.minute,
                                     row.second);
            ADD_FAILURE() << "no exception";
        } catch (const Qn::OsDateEx::ExInvalidDate& e) {
            EXPECT_EQ(std::string(e.what()), std::string("Invalid date: '") + row.quoted + "'.");
        }
    }
}
