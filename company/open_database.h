#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "company/company_address.h"
#include "host/data_access.h"

namespace varnel::company {

/// The database at an address, read only; nothing is opened before the first query. Reports are
/// told `database_type`, otherwise 1 for a file and 0 for a server. A query ends with an error when
/// `cancelled` says yes; over a server it is asked from another thread.
std::unique_ptr<CompanyDatabase> OpenDatabase(const CompanyAddress& address,
                                              std::optional<int> database_type = {},
                                              std::function<bool()> cancelled = {});

}  // namespace varnel::company
