#pragma once

#include <string>
#include <string_view>

namespace varnel::render {

/// Appends one field: as it stands, or between quotes with inner quotes doubled when it holds a
/// comma, a quote, a carriage return or a line feed. The bytes of the text are never altered.
void AppendCsvField(std::string& out, std::string_view text);

}  // namespace varnel::render
