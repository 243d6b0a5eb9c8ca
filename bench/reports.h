#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnel::bench {

/// A report that is timed against the bare reading of its statement.
struct ReportCase {
    std::string_view name;
    /// Options of its own for a company.
    std::vector<std::string> (*options)(const std::string& company);
    /// Its statement over all dates, as SQLite takes it.
    std::string (*statement)(const std::string& company);
    /// Whether it runs on a company of more than a thousand accounts.
    bool wide_chart = false;
};

std::span<const ReportCase> ReportCases();

}  // namespace varnel::bench
