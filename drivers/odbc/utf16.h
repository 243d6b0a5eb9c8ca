#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnel::drivers {

/// What ODBC takes for wide text.
using WideText = std::vector<unsigned short>;

/// Ends with a 0. Bytes that are no UTF-8 become U+FFFD.
WideText ToUtf16(std::string_view utf8);

/// Up to the first 0. Halves of a pair that stand alone become U+FFFD.
std::string ToUtf8(const unsigned short* utf16);

}  // namespace varnel::drivers
