#pragma once

#include <string>
#include <string_view>

namespace varnel::render {

/// Columns a text takes on a terminal: 0 for marks and formatting characters, 2 for wide East Asian
/// characters, 1 for all others, control characters and bytes that are not UTF-8 included.
int CellWidth(std::string_view utf8);

/// Bytes of the longest beginning of the text that takes at most `columns`; marks stay with the
/// character before them.
std::size_t CellPrefix(std::string_view utf8, int columns);

/// The text up to its last character that shows: AppendCells makes blanks of what is left out.
std::string_view WithoutTrailingBlanks(std::string_view utf8);

/// Appends the text as CellWidth counts it: control characters become spaces, so that no text can
/// steer a terminal, and bytes that are not UTF-8 become U+FFFD.
void AppendCells(std::string& out, std::string_view utf8);

}  // namespace varnel::render
