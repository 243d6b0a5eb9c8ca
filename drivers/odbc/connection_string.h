#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnel::drivers {

/// One keyword of an ODBC connection string with its value, without the braces around it.
struct ConnectionKeyword {
    std::string name;
    std::string value;
};

/// The keywords of "Driver={PostgreSQL Unicode};Server=db;Database=shop", in order. Raises error 5
/// when something has no "=" or a brace is never closed; the message shows no value.
std::vector<ConnectionKeyword> ParseConnectionString(std::string_view text);

/// The other way; values get braces where they need them.
std::string JoinConnectionString(const std::vector<ConnectionKeyword>& keywords);

/// The string with the settings that reading rests on (no cursors but our own, truth values as
/// numbers) added where it says nothing of them.
std::string WithReadingDefaults(std::string_view connection_string);

}  // namespace varnel::drivers
