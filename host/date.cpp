#include "host/date.h"

#include "host/error.h"

namespace varnel {

namespace {

// Day number of 1970-01-01 when the zero date is 1899-12-30.
constexpr std::int32_t kUnixEpoch = 25'569;
constexpr int kDaysPerEra = 146'097;

int FloorDivide(int a, int b) { return a / b - (a % b < 0 ? 1 : 0); }

// Eras of 400 years that begin on 1 March, so that the leap day is the last day of a year.
std::int32_t DaysFromCivil(int year, int month, int day) {
    year += FloorDivide(month - 1, 12);
    month = (month - 1) - 12 * FloorDivide(month - 1, 12) + 1;
    if (month <= 2) --year;
    const int era = FloorDivide(year, 400);
    const int year_of_era = year - era * 400;
    const int day_of_year = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5;
    const int day_of_era = year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year;
    return era * kDaysPerEra + day_of_era - 719'468 + (day - 1) + kUnixEpoch;
}

bool Digits(std::string_view text, int& value) {
    value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return false;
        value = value * 10 + (c - '0');
    }
    return true;
}

}  // namespace

Date Date::FromYearMonthDay(int year, int month, int day) {
    return Date(DaysFromCivil(year, month, day));
}

Date::YearMonthDay Date::Civil() const {
    const int days = day_ - kUnixEpoch + 719'468;
    const int era = FloorDivide(days, kDaysPerEra);
    const int day_of_era = days - era * kDaysPerEra;
    const int year_of_era =
        (day_of_era - day_of_era / 1'460 + day_of_era / 36'524 - day_of_era / 146'096) / 365;
    const int day_of_year = day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
    const int shifted_month = (5 * day_of_year + 2) / 153;
    const int month = shifted_month + (shifted_month < 10 ? 3 : -9);
    return {year_of_era + era * 400 + (month <= 2 ? 1 : 0), month,
            day_of_year - (153 * shifted_month + 2) / 5 + 1};
}

bool Date::TryParseIso(std::string_view text, Date& date) {
    int year = 0;
    int month = 0;
    int day = 0;
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return false;
    if (!Digits(text.substr(0, 4), year) || !Digits(text.substr(5, 2), month) ||
        !Digits(text.substr(8, 2), day))
        return false;
    const Date candidate = FromYearMonthDay(year, month, day);
    const auto civil = candidate.Civil();
    if (civil.year != year || civil.month != month || civil.day != day) return false;
    date = candidate;
    return true;
}

Date Date::ParseIso(std::string_view text) {
    Date date;
    if (!TryParseIso(text, date))
        throw Error(error_number::kTypeMismatch, "Varnel",
                    "\"" + std::string(text) + "\" is not a date; write it like 2025-03-31");
    return date;
}

void Date::AppendIso(std::string& out) const {
    auto [year, month, day] = Civil();
    char text[] = "0000-00-00";
    for (int i = 3; i >= 0; --i, year /= 10) text[i] = static_cast<char>('0' + year % 10);
    text[5] = static_cast<char>('0' + month / 10);
    text[6] = static_cast<char>('0' + month % 10);
    text[8] = static_cast<char>('0' + day / 10);
    text[9] = static_cast<char>('0' + day % 10);
    out.append(text, 10);
}

std::string Date::ToIso() const {
    std::string text;
    AppendIso(text);
    return text;
}

}  // namespace varnel
