#pragma once

#include <string>
#include <string_view>

namespace varnel::render {

/// A PDF text string (titles, bookmarks, languages) from UTF-8, delimiters included: a literal
/// string when it is plain ASCII, hexadecimal UTF-16 otherwise.
void AppendPdfString(std::string& out, std::string_view utf8);

/// Text for XML content and attributes. Characters XML cannot hold become U+FFFD.
void AppendXmlText(std::string& out, std::string_view utf8);

/// Appends the UTF-16 code units of a code point as hexadecimal, high byte first.
void AppendUtf16Hex(std::string& out, char32_t code_point);

void AppendHex16(std::string& out, unsigned value);

}  // namespace varnel::render
