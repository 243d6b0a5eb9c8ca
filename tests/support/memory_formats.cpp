#include "tests/support/memory_formats.h"

#include <charconv>

namespace varnel::test {

void MemoryFormats::AppendMarked(const std::string& plain, std::string& out) const {
    const std::size_t point = std::min(plain.find('.'), plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const bool between_digits = i > 0 && plain[i - 1] != '-';
        if (i < point && between_digits && (point - i) % 3 == 0) out += group_mark;
        if (plain[i] == '.')
            out += decimal_mark;
        else
            out += plain[i];
    }
}

void MemoryFormats::AppendShortDate(Date date, std::string& out) {
    calls_.Note("AppendShortDate");
    date.AppendIso(out);
}

void MemoryFormats::AppendAmount(Currency amount, std::string& out) {
    AppendAmount(amount, 2, out);
}

void MemoryFormats::AppendAmount(Currency amount, int decimals, std::string& out) {
    calls_.Note("AppendAmount");
    AppendMarked(Round(amount, decimals).ToText(decimals), out);
}

void MemoryFormats::AppendNumber(double value, int decimals, std::string& out) {
    calls_.Note("AppendNumber");
    char text[64];
    const auto written =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals);
    AppendMarked({text, written.ptr}, out);
}

void MemoryFormats::AppendCount(std::int64_t count, std::string& out) {
    calls_.Note("AppendCount");
    AppendMarked(std::to_string(count), out);
}

}  // namespace varnel::test
