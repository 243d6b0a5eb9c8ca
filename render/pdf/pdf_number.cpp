#include "render/pdf/pdf_number.h"

#include <charconv>
#include <cmath>
#include <stdexcept>

namespace varnel::render {

Hundredths ToHundredths(double points) {
    constexpr double kLimit = 1e6;
    if (!(std::abs(points) <= kLimit)) {
        throw std::invalid_argument(
            "a length on a PDF page must be a number below a million points");
    }
    return static_cast<Hundredths>(points * 100 + (points < 0 ? -0.5 : 0.5));
}

char* WriteInteger(char* out, std::int64_t value) {
    return std::to_chars(out, out + kLongestNumber, value).ptr;
}

char* WriteHundredths(char* out, Hundredths value) {
    if (value < 0) {
        *out++ = '-';
        value = -value;
    }
    const Hundredths fraction = value % 100;
    out = std::to_chars(out, out + kLongestNumber, value / 100).ptr;
    if (fraction == 0) return out;
    *out++ = '.';
    *out++ = static_cast<char>('0' + fraction / 10);
    if (fraction % 10 != 0) *out++ = static_cast<char>('0' + fraction % 10);
    return out;
}

void AppendInteger(std::string& out, std::int64_t value) {
    char digits[kLongestNumber];
    out.append(digits, WriteInteger(digits, value));
}

void AppendDecimal(std::string& out, double value) {
    const auto thousandths = static_cast<std::int64_t>(std::llround(value * 1000));
    if (thousandths < 0) out += '-';
    const std::int64_t magnitude = std::abs(thousandths);
    AppendInteger(out, magnitude / 1000);
    char decimals[4] = {'.', static_cast<char>('0' + magnitude / 100 % 10),
                        static_cast<char>('0' + magnitude / 10 % 10),
                        static_cast<char>('0' + magnitude % 10)};
    std::size_t count = sizeof decimals;
    while (count > 1 && decimals[count - 1] == '0') --count;
    if (count > 1) out.append(decimals, count);
}

}  // namespace varnel::render
