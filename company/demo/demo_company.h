#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "company/writing/writing_options.h"

namespace varnel::company {

struct DemoOptions : WritingOptions {
    /// Ledger lines to write, give or take one document. The company grows with them: the
    /// proportions of accounts, documents and currencies stay.
    std::int64_t lines = 12'000;
    /// The same seed and number of lines give the same company everywhere.
    std::uint64_t seed = 1;
    /// Hears now and then how many of the lines are written.
    std::function<void(std::int64_t done, std::int64_t lines)> progress = {};
};

inline constexpr std::int64_t kDemoLinesMin = 1'000;
inline constexpr std::int64_t kDemoLinesMax = 100'000'000;

/// Writes the company database of a small kitchenware trader to `address`, a file or a database on
/// a server (company_address.h): two fiscal years and an open one, three currencies, segments,
/// projects, budgets, bank reconciliations. Every entry balances. The company appears whole or not
/// at all; anything that prevents it is an `Error` that names the place.
void CreateDemoCompany(const std::string& address, const DemoOptions& options = {});

}  // namespace varnel::company
