#include "host/date.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

TEST(DateTest, DayNumbersCountFromTheZeroDate) {
    EXPECT_EQ(Date().ToIso(), "1899-12-30");
    EXPECT_EQ(kOpenStart.ToIso(), "1899-12-31");
    EXPECT_EQ(kOpenEnd.ToIso(), "9999-12-31");
    EXPECT_EQ(Date::ParseIso("1899-12-31").DayNumber(), 1);
    EXPECT_EQ(Date::ParseIso("1900-03-01").DayNumber(), 61);
    EXPECT_EQ(Date::ParseIso("1970-01-01").DayNumber(), 25'569);
    EXPECT_EQ(Date::ParseIso("2000-01-01").DayNumber(), 36'526);
    EXPECT_EQ(Date::ParseIso("9999-12-31").DayNumber(), 2'958'465);
}

// Walks every day of the calendar beside a counter that knows only the lengths of the months.
TEST(DateTest, EveryDayFrom1600To9999HasItsOwnNumber) {
    const auto length = [](int year, int month) {
        if (month == 2) return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
        return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
    };
    Date date = Date::FromYearMonthDay(1600, 1, 1);
    for (int year = 1600; year <= 9999; ++year)
        for (int month = 1; month <= 12; ++month)
            for (int day = 1; day <= length(year, month); ++day, date = date + 1) {
                const auto civil = date.Civil();
                ASSERT_EQ(std::tie(civil.year, civil.month, civil.day),
                          std::make_tuple(year, month, day));
                ASSERT_EQ(Date::FromYearMonthDay(year, month, day), date);
            }
    EXPECT_EQ(date - 1, kOpenEnd);
}

struct CarryCase {
    int year, month, day;
    const char* date;
};

constexpr CarryCase kCarried[] = {
    {2025, 2, 29, "2025-03-01"}, {1900, 2, 29, "1900-03-01"},  {2025, 13, 1, "2026-01-01"},
    {2025, 0, 31, "2024-12-31"}, {2025, -11, 1, "2024-01-01"}, {2025, 25, 15, "2027-01-15"},
    {2025, 3, 0, "2025-02-28"},  {2025, 12, 32, "2026-01-01"}, {2025, 1, -30, "2024-12-01"}};

TEST(DateTest, DaysAndMonthsBeyondTheirEndCarryOver) {
    for (const auto& [year, month, day, date] : kCarried)
        EXPECT_EQ(Date::FromYearMonthDay(year, month, day).ToIso(), date);
}

TEST(DateTest, ReadsOnlyIsoDatesThatExist) {
    for (const char* text : {"2025-02-30", "2025-02-29", "2025-13-01", "2025-00-10", "2025-01-00",
                             "2025-04-31", "2025-1-01", "25-01-01", "2025/01/01", "2025-01-01 ",
                             " 2025-01-1", "", "2025-01-1x", "-025-01-01", "2025-01-01T00:00:00"}) {
        Date date = kOpenEnd;
        EXPECT_FALSE(Date::TryParseIso(text, date)) << text;
        EXPECT_EQ(date, kOpenEnd);
        std::string description;
        EXPECT_EQ(ErrorOf([&] { Date::ParseIso(text); }, &description),
                  error_number::kTypeMismatch);
        EXPECT_EQ(description,
                  "\"" + std::string(text) + "\" is not a date; write it like 2025-03-31");
    }
    EXPECT_EQ(Date::ParseIso("2024-02-29").ToIso(), "2024-02-29");
}

TEST(DateTest, DifferencesAndOrderCountDays) {
    const Date end_of_february = Date::ParseIso("2024-02-28");
    EXPECT_EQ((end_of_february + 2).ToIso(), "2024-03-01");
    EXPECT_EQ(Date::ParseIso("2025-01-01") - Date::ParseIso("2024-01-01"), 366);
    EXPECT_LT(end_of_february, end_of_february + 1);
}

}  // namespace
}  // namespace varnel::test
