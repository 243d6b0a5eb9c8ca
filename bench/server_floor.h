#pragma once

#include <cstdint>
#include <string>

namespace varnel::bench {

/// Steps through a statement's rows with the bare ODBC calls, in blocks of columns that are bound
/// once as texts, through a cursor of the driver's own. Returns their number.
std::int64_t FetchRows(const std::string& odbc_connection, const std::string& statement);

}  // namespace varnel::bench
