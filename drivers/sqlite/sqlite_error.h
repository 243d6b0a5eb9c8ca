#pragma once

#include <string>
#include <string_view>

namespace varnel::drivers {

/// Raises error 3709 of source "SQLite".
[[noreturn]] void RaiseSqlite(const std::string& description);

/// The same for a statement, which ends the description on a line of its own.
[[noreturn]] void RaiseSqlite(const std::string& description, std::string_view statement);

/// SQLite's message for a result code, made a sentence, with what to do about it where that is
/// known. `path` is the file of the database.
std::string DescribeSqliteError(int code, std::string_view message, const std::string& path);

}  // namespace varnel::drivers
