#pragma once

#include "company/demo/database.h"
#include "company/demo/rates.h"

namespace varnel::company::demo {

/// Everything that is there before the first entry: chart, currencies with their rates, segments,
/// projects, fiscal years, settings and account parameters.
void WriteMasterData(Database& database, const RateTable& rates);

/// The budget of every income and expense account by month, in whole dollars: the reference
/// company's, times `lines` / 12,000, with the seasons and a little growth.
void WriteBudgets(Database& database, std::int64_t lines);

}  // namespace varnel::company::demo
