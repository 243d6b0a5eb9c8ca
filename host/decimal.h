#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varnel {

__extension__ typedef __int128 Int128;

/// Exact decimals kept as integers scaled by a power of ten: what `Currency` and `Rate` have in
/// common.
namespace decimal {

/// 10 to the power of `exponent`, 0 to 18.
std::int64_t PowerOfTen(int exponent);

/// `numerator / divisor`, rounded half away from zero. `divisor` is positive.
constexpr Int128 DivideRounded(Int128 numerator, Int128 divisor) {
    const Int128 half = divisor / 2;
    return (numerator < 0 ? numerator - half : numerator + half) / divisor;
}

/// Reads "-1234.5" as an integer scaled by 10^decimals. No grouping, no blanks, a point as decimal
/// mark; decimals beyond `decimals` are rounded half away from zero. False when the text is not a
/// number or does not fit.
bool Parse(std::string_view text, int decimals, std::int64_t& scaled);

/// Appends `scaled` / 10^decimals with at least `least` decimals ("1234.50"), without trailing
/// zeros beyond them.
void Append(std::int64_t scaled, int decimals, int least, std::string& out);

/// Appends the shortest decimal text that reads back as `value`: "100000", "0.1", never "1e+05"
/// unless it would take more than 30 characters.
void AppendDouble(double value, std::string& out);

/// The 64-bit value, or error 6 (overflow) naming `what`.
std::int64_t Narrow(Int128 value, const char* what);

}  // namespace decimal
}  // namespace varnel
