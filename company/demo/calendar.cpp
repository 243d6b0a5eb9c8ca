#include "company/demo/calendar.h"

namespace varnel::company::demo {

Date BooksBegin() { return Date::FromYearMonthDay(2024, 1, 1); }
Date BooksEnd() { return Date::FromYearMonthDay(2026, 10, 31); }

int Weekday(Date date) {
    constexpr int kFirstMonday = 2;  // 1900-01-01
    return (date.DayNumber() - kFirstMonday) % 7;
}

// New Year's Day, the national holiday, Christmas and Boxing Day; the shop keeps the others open.
bool IsBusinessDay(Date date) {
    if (Weekday(date) >= 5) return false;
    const auto civil = date.Civil();
    const int day = civil.month * 100 + civil.day;
    return day != 101 && day != 701 && day != 1225 && day != 1226;
}

Date MonthBegin(Date date) {
    const auto civil = date.Civil();
    return Date::FromYearMonthDay(civil.year, civil.month, 1);
}

Date MonthEnd(Date date) {
    const auto civil = date.Civil();
    return Date::FromYearMonthDay(civil.year, civil.month + 1, 1) - 1;
}

int BusinessDaysLeftInMonth(Date date) {
    int left = 0;
    const Date end = MonthEnd(date);
    for (Date day = date + 1; day <= end; day = day + 1) left += IsBusinessDay(day) ? 1 : 0;
    return left;
}

bool IsPayday(Date date) { return Weekday(date) == 4 && (date.DayNumber() / 7) % 2 == 0; }

}  // namespace varnel::company::demo
