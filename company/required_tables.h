#pragma once

#include <string>

#include "host/data_access.h"

namespace varnel::company {

/// Makes sure that the database has every table and column that the host and the reports read.
/// Raises error 3709 naming what is missing and `database_name`.
void RequireCompanyTables(CompanyDatabase& database, const std::string& database_name);

}  // namespace varnel::company
