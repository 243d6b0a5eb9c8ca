#pragma once

#include <string>
#include <string_view>

namespace varnel::render {

/// Appends a JSON string, quotes included. Quotes, backslashes, control characters and the line
/// separators U+2028 and U+2029 are escaped; bytes that are not UTF-8 become U+FFFD.
void AppendJsonString(std::string& out, std::string_view utf8);

}  // namespace varnel::render
