#pragma once

#include <initializer_list>
#include <memory>
#include <string>

#include "host/data_access.h"

namespace varnel::company {

/// Runs one query of the host's own, without a time limit.
std::shared_ptr<Recordset> Query(CompanyDatabase& database, const std::string& text,
                                 std::initializer_list<Variant> parameters = {});

}  // namespace varnel::company
