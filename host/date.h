#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnel {

/// A calendar date: a count of days in which the zero date is 1899-12-30. Proleptic Gregorian, no
/// time of day.
class Date {
  public:
    constexpr Date() = default;
    static constexpr Date FromDayNumber(std::int32_t day) { return Date(day); }
    /// Days and months outside their range carry over (month 13 is January of the next year, 29
    /// February of a common year is 1 March), as hosts' date builders do.
    static Date FromYearMonthDay(int year, int month, int day);
    /// Reads "2025-03-31", a date that exists. Raises error 13 naming the text otherwise.
    static Date ParseIso(std::string_view text);
    static bool TryParseIso(std::string_view text, Date& date);

    constexpr std::int32_t DayNumber() const { return day_; }
    struct YearMonthDay {
        int year, month, day;
    };
    YearMonthDay Civil() const;
    /// "2025-03-31".
    std::string ToIso() const;
    void AppendIso(std::string& out) const;

    friend constexpr Date operator+(Date date, std::int32_t days) { return Date(date.day_ + days); }
    friend constexpr Date operator-(Date date, std::int32_t days) { return Date(date.day_ - days); }
    friend constexpr std::int32_t operator-(Date a, Date b) { return a.day_ - b.day_; }
    friend constexpr auto operator<=>(Date, Date) = default;

  private:
    explicit constexpr Date(std::int32_t day) : day_(day) {}
    std::int32_t day_ = 0;
};

/// The limits that stand for "no limit" of a period: 1899-12-31 as a start and 9999-12-31 as an
/// end.
inline constexpr Date kOpenStart = Date::FromDayNumber(1);
inline constexpr Date kOpenEnd = Date::FromDayNumber(2'958'465);

}  // namespace varnel
