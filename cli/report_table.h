#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "cli/run_settings.h"
#include "host/application.h"
#include "host/report.h"

namespace varnel::cli {

/// A report as the command line knows it.
struct ReportEntry {
    std::string_view name;
    std::string_view method;  // Of the factory, Varnel.clsReport.
    std::string_view class_name;
    /// What the factory method takes.
    std::vector<Variant> (*arguments)(const RunSettings& settings, Application& application);
    /// The number of its title when that is not its class's; 0 is none.
    std::int16_t title_text = 0;
    /// Properties that take the internal id of the one account and the one currency that the report
    /// is about; empty for reports that are about all.
    std::string_view account_property = {};
    std::string_view currency_property = {};
    /// Whether the report can be about the accounts of one type; the factory is given it.
    bool by_account_type = false;
    /// Property that holds the ids of the projects that the report is about; the factory is given
    /// them. Empty for reports that are about all.
    std::string_view projects_property = {};
    /// Properties of the days of a cumulative period; empty for reports that have none.
    std::string_view cumulative_from_property = {};
    std::string_view cumulative_to_property = {};
    /// Properties of a bank reconciliation: the date and the ending balance of the bank's
    /// statement, the id of a saved reconciliation, and the rows of the one in progress; empty for
    /// reports that have none.
    std::string_view statement_date_property = {};
    std::string_view ending_balance_property = {};
    std::string_view history_property = {};
    std::string_view rows_property = {};
    /// Whether the report keeps its custom filter and makes nothing of it.
    bool ignores_filter = false;
    /// Whether the filter is not criteria but exchange rates: "USD=1.35|EUR=1.47".
    bool filter_gives_rates = false;
};

/// Every report.
std::span<const ReportEntry> Reports();

/// Raises a UsageError for a name that is unknown.
const ReportEntry& FindReport(std::string_view name);

/// One of its kind, without a company, to ask what it takes.
std::shared_ptr<IReport> SampleReport(const ReportEntry& entry);
/// The number of its title.
std::int16_t TitleText(const ReportEntry& entry);

/// A new report from the factory; null when the factory showed a message instead.
std::shared_ptr<IReport> MakeReport(const ReportEntry& entry, std::span<const Variant> arguments);

}  // namespace varnel::cli
