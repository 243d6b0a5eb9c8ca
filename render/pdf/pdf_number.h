#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varnel::render {

/// Lengths in PDF content are whole hundredths of a point (3.5 micrometres), so that relative moves
/// add up without drift.
using Hundredths = std::int32_t;

/// Rounds to the nearest. Throws std::invalid_argument for what is no length on a page: not a
/// number, or beyond a million points.
Hundredths ToHundredths(double points);

/// No number written below is longer.
inline constexpr std::size_t kLongestNumber = 24;

/// Write a number without superfluous zeros ("12.5", "-0.07") and return the end. The writer owns
/// the digits: no locale, no exponent.
char* WriteHundredths(char* out, Hundredths value);
char* WriteInteger(char* out, std::int64_t value);

/// Up to three decimals; for what is written a few times in a document.
void AppendDecimal(std::string& out, double value);
void AppendInteger(std::string& out, std::int64_t value);

}  // namespace varnel::render
