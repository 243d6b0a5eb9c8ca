#pragma once

#include <cstdint>
#include <functional>

#include "company/demo/books.h"

namespace varnel::company::demo {

/// Keeps the books day by day until they hold `lines` ledger lines, give or take one document.
/// Every kind of document gets its share of the lines whatever their number. `progress` hears of
/// the lines once a day.
void KeepBooks(Books& books, std::int64_t lines, const std::function<void(std::int64_t)>& progress);

}  // namespace varnel::company::demo
