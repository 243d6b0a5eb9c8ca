#include "host/decimal.h"

#include <array>
#include <charconv>
#include <iterator>
#include <limits>

#include "host/error.h"

namespace varnel::decimal {

namespace {

constexpr std::array<std::int64_t, 19> kPowers = [] {
    std::array<std::int64_t, 19> powers{};
    std::int64_t power = 1;
    for (auto& entry : powers) {
        entry = power;
        if (power < 1'000'000'000'000'000'000) power *= 10;
    }
    return powers;
}();

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr Int128 kParseLimit = Int128{1} << 100;

}  // namespace

std::int64_t PowerOfTen(int exponent) { return kPowers.at(static_cast<std::size_t>(exponent)); }

bool Parse(std::string_view text, int decimals, std::int64_t& scaled) {
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
    Int128 value = 0;
    int seen_decimals = -1;  // -1 until the decimal mark was seen.
    bool any_digit = false;
    bool round_up = false;
    for (const char c : text) {
        if (c == '.' && seen_decimals < 0) {
            seen_decimals = 0;
            continue;
        }
        if (!IsDigit(c)) return false;
        any_digit = true;
        if (seen_decimals == decimals) {
            round_up = c >= '5';
            seen_decimals = decimals + 1;
        }
        if (seen_decimals > decimals) continue;
        if (seen_decimals >= 0) ++seen_decimals;
        value = value * 10 + (c - '0');
        if (value > kParseLimit) return false;
    }
    if (!any_digit) return false;
    for (int have = seen_decimals < 0 ? 0 : seen_decimals; have < decimals; ++have) value *= 10;
    if (round_up) ++value;
    if (negative) value = -value;
    if (value > std::numeric_limits<std::int64_t>::max() ||
        value < std::numeric_limits<std::int64_t>::min())
        return false;
    scaled = static_cast<std::int64_t>(value);
    return true;
}

void Append(std::int64_t scaled, int decimals, int least, std::string& out) {
    char buffer[48];
    const bool negative = scaled < 0;
    const auto magnitude =
        negative ? ~static_cast<std::uint64_t>(scaled) + 1 : static_cast<std::uint64_t>(scaled);
    const auto power = static_cast<std::uint64_t>(PowerOfTen(decimals));
    if (negative) out += '-';
    out.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, magnitude / power).ptr);
    auto fraction = magnitude % power;
    int digits = decimals;
    while (digits > least && fraction % 10 == 0) {
        fraction /= 10;
        --digits;
    }
    if (digits == 0) return;
    for (int i = digits; i-- > 0; fraction /= 10)
        buffer[i] = static_cast<char>('0' + fraction % 10);
    out += '.';
    out.append(buffer, static_cast<std::size_t>(digits));
}

void AppendDouble(double value, std::string& out) {
    char buffer[30];
    auto written = std::to_chars(buffer, std::end(buffer), value, std::chars_format::fixed);
    if (written.ec != std::errc{})
        written = std::to_chars(buffer, std::end(buffer), value, std::chars_format::scientific);
    out.append(buffer, written.ptr);
}

std::int64_t Narrow(Int128 value, const char* what) {
    if (value > std::numeric_limits<std::int64_t>::max() ||
        value < std::numeric_limits<std::int64_t>::min())
        throw Error(error_number::kOverflow, "Varnel", std::string(what) + " is too large");
    return static_cast<std::int64_t>(value);
}

}  // namespace varnel::decimal
