#include "company/formats/locale_formats.h"

#include <charconv>
#include <cmath>

#include "company/formats/icu_locale.h"
#include "host/decimal.h"
#include "host/error.h"

namespace varnel::company {

namespace {

std::uint64_t Magnitude(std::int64_t value) {
    return value < 0 ? ~static_cast<std::uint64_t>(value) + 1 : static_cast<std::uint64_t>(value);
}

void RequireDecimals(int decimals, int most) {
    if (decimals < 0 || decimals > most)
        throw Error(error_number::kInvalidArgument, "Formats",
                    "A number is shown with 0 to " + std::to_string(most) + " decimals, not " +
                        std::to_string(decimals));
}

}  // namespace

LocaleFormats::LocaleFormats(std::string_view locale, DateStyle date_style) {
    const LocaleData data = ReadLocale(locale);
    numbers_ = data.numbers;
    if (date_style == DateStyle::kLocale) dates_ = DatePattern(data.short_date_pattern);
}

void LocaleFormats::AppendShortDate(Date date, std::string& out) { dates_.Append(date, out); }

void LocaleFormats::AppendAmount(Currency amount, std::string& out) {
    const std::uint64_t cents = (Magnitude(amount.Scaled()) + 50) / 100;
    AppendDecimal(numbers_, cents, 2, amount.Scaled() < 0 && cents != 0, out);
}

void LocaleFormats::AppendAmount(Currency amount, int decimals, std::string& out) {
    RequireDecimals(decimals, Currency::kDecimals);
    const auto unit =
        static_cast<std::uint64_t>(decimal::PowerOfTen(Currency::kDecimals - decimals));
    const std::uint64_t units = (Magnitude(amount.Scaled()) + unit / 2) / unit;
    AppendDecimal(numbers_, units, decimals, amount.Scaled() < 0 && units != 0, out);
}

void LocaleFormats::AppendNumber(double value, int decimals, std::string& out) {
    constexpr int kMostDecimals = 9;
    RequireDecimals(decimals, kMostDecimals);
    const double scaled = std::round(value * static_cast<double>(decimal::PowerOfTen(decimals)));
    if (std::abs(scaled) < 9e18) {
        const auto units = static_cast<std::int64_t>(scaled);
        return AppendDecimal(numbers_, Magnitude(units), decimals, units < 0, out);
    }
    // Beyond what an integer holds (or no number at all) only the size matters: 1e+25, inf.
    char text[64];
    out.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}

void LocaleFormats::AppendCount(std::int64_t count, std::string& out) {
    AppendDecimal(numbers_, Magnitude(count), 0, count < 0, out);
}

}  // namespace varnel::company
