#pragma once

#include <string>

struct sqlite3;

namespace varnel::drivers {

/// Makes the connection refuse, when a statement is prepared, everything but reading tables and
/// calling functions. What was refused is written to `refusal`, ready to follow "it may not "; the
/// string must outlive the connection.
void AllowReadingOnly(sqlite3* database, std::string& refusal);

}  // namespace varnel::drivers
