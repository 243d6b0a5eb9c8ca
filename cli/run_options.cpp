#include "cli/run_options.h"

namespace varnel::cli {

namespace {

bool Always(const ReportEntry&, IReport&) { return true; }

bool HasFirstDay(const ReportEntry&, IReport& report) {
    return report.IReport_DateDisplayOptions() == DateDisplay::kFromTo;
}

bool HasLastDay(const ReportEntry&, IReport& report) {
    return report.IReport_DateDisplayOptions() != DateDisplay::kNone;
}

template <class Companion>
bool Has(const ReportEntry&, IReport& report) {
    return dynamic_cast<Companion*>(&report) != nullptr;
}

bool HasAccount(const ReportEntry& entry, IReport&) { return !entry.account_property.empty(); }

bool HasCurrency(const ReportEntry& entry, IReport&) { return !entry.currency_property.empty(); }

bool HasAccountType(const ReportEntry& entry, IReport&) { return entry.by_account_type; }

bool HasProjects(const ReportEntry& entry, IReport&) { return !entry.projects_property.empty(); }

bool HasHistory(const ReportEntry& entry, IReport&) { return !entry.history_property.empty(); }

bool HasStatement(const ReportEntry& entry, IReport&) {
    return !entry.statement_date_property.empty();
}

bool HasRows(const ReportEntry& entry, IReport&) { return !entry.rows_property.empty(); }

bool HasFilter(const ReportEntry& entry, IReport& report) {
    return Has<IFilterableReport>(entry, report) && !entry.ignores_filter;
}

bool HasCumulativePeriod(const ReportEntry& entry, IReport&) {
    return !entry.cumulative_from_property.empty();
}

constexpr RunOption kOptions[] = {
    {"--company", "FILE", &RunRequest::company,
     "The company database: a file, or postgresql://user@host/database"},
    {"--from", "DATE", &RunRequest::from, "First day, as 2025-03-31; left out: no limit",
     HasFirstDay},
    {"--to", "DATE", &RunRequest::to, "Last day, or the closing date; left out: no limit",
     HasLastDay},
    {"--account", "NUMBER", &RunRequest::account, "The account, by its number", HasAccount},
    {"--currency", "CODE", &RunRequest::currency, "The foreign currency, as USD", HasCurrency},
    {"--account-type", "NUMBER", &RunRequest::account_type,
     "Only lines of accounts of this type, as 4", HasAccountType},
    {"--projects", "IDS", &RunRequest::projects, "The projects, by id: 3,7", HasProjects},
    {"--history", "ID", &RunRequest::history, "The saved bank reconciliation, by id", HasHistory},
    {"--statement-date", "DATE", &RunRequest::statement_date, "The date of the bank's statement",
     HasStatement},
    {"--ending-balance", "AMOUNT", &RunRequest::ending_balance,
     "The ending balance of the bank's statement, as -1234.50", HasStatement},
    {"--rows", "FILE", &RunRequest::rows_file,
     "The lines to reconcile, as CSV; - for standard input", HasRows},
    {"--cumulative-from", "DATE", &RunRequest::cumulative_from,
     "First day of the cumulative period; left out: of the fiscal year of --to",
     HasCumulativePeriod},
    {"--cumulative-to", "DATE", &RunRequest::cumulative_to,
     "Last day of the cumulative period; left out: --to", HasCumulativePeriod},
    {"--segments", "IDS", &RunRequest::segments, "Only these segments, by id: 3,7",
     Has<ISegmentFilter>},
    {"--no-segment", "", &RunRequest::no_segment,
     "Lines without a segment: these too, or only these", Has<ISegmentFilter>},
    {"--filter", "TEXT", &RunRequest::filter,
     "Criteria and ordering in SQL: 'GLDet.DetAmnt > 500|GLDet.DetDate'", HasFilter},
    {"--foreign", "", &RunRequest::foreign, "Show amounts in foreign currency too", Always},
    {"--revalue", "", &RunRequest::revalue,
     "Foreign balances at the exchange rates of the last day", Has<IExchangeRates>},
    {"--rate", "CODE=RATE", &RunRequest::rates,
     "Revalue at this rate instead of the company's, as USD=1.3725; can be given more than once",
     Has<IExchangeRates>},
    {"--rates", "FILE", &RunRequest::rates_file, "A file of such rates, one a line",
     Has<IExchangeRates>},
    {"--property", "NAME=VALUE", &RunRequest::properties,
     "Set a property of the report; can be given more than once", Always},
    {"--option", "NAME=VALUE", &RunRequest::options,
     "Set a check box of the options dialog, yes or no; can be given more than once",
     Has<IReportConfig>},
    {"--configure", "", &RunRequest::configure, "Open the report's options dialog first",
     Has<IReportConfig>},
    {"--session-date", "DATE", &RunRequest::session_date,
     "The date the company is worked at; left out: the company's, else today"},
    {"--dialect", "server|desktop", &RunRequest::dialect,
     "The SQL that the report writes; left out: that of the company's database"},
    {"--lang", "en-CA|fr-CA", &RunRequest::language, "Language; left out: the company's"},
    {"--paper", "letter|a4", &RunRequest::paper, "Paper of a PDF; left out: letter"},
    {"--landscape", "", &RunRequest::landscape, "Turn the paper of a PDF"},
    {"-O,--format", "pdf|txt|csv|jsonl", &RunRequest::format,
     "Format; left out: that of the file's name, else txt"},
    {"-o,--output", "FILE", &RunRequest::output,
     "The file to write, - for standard output; left out: standard output"},
};

}  // namespace

std::string_view RunOption::LongName() const { return names.substr(names.find("--")); }

bool RunOption::IsGiven(const RunRequest& request) const {
    if (const auto* flag = std::get_if<bool RunRequest::*>(&target)) return request.**flag;
    if (const auto* text = std::get_if<std::string RunRequest::*>(&target))
        return !(request.**text).empty();
    return !(request.*std::get<std::vector<std::string> RunRequest::*>(target)).empty();
}

std::span<const RunOption> RunOptions() { return kOptions; }

std::vector<const RunOption*> OptionsOf(const ReportEntry& entry) {
    const auto report = SampleReport(entry);
    std::vector<const RunOption*> options;
    for (const auto& option : kOptions)
        if (option.taken_by != nullptr && option.taken_by(entry, *report))
            options.push_back(&option);
    return options;
}

}  // namespace varnel::cli
