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

/// The string with the settings that the drivers rest on: truth values as numbers, statements that
/// the server takes one at a time, and none of the driver's own cursors, which it does not survive
/// when the connection is lost. What the string says of them does not count. Unless it says
/// otherwise, a server that vanishes from the network is noticed after some two minutes.
std::string WithOwnSettings(std::string_view connection_string);

}  // namespace varnel::drivers
