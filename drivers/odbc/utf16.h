#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnel::drivers {

/// What ODBC takes for wide text.
using WideText = std::vector<unsigned short>;

/// Ends with a 0. Bytes that are no UTF-8 become U+FFFD.
WideText ToUtf16(std::string_view utf8);

/// The first `most` bytes of a text or fewer, whole characters.
std::string_view Beginning(std::string_view utf8, std::size_t most);

/// Halves of a pair that stand alone become U+FFFD.
void AppendUtf8(std::span<const unsigned short> utf16, std::string& out);

/// The same, up to the first 0.
std::string ToUtf8(const unsigned short* utf16);

}  // namespace varnel::drivers
