#pragma once

#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "cli/report_table.h"
#include "cli/run_request.h"
#include "host/report.h"

namespace varnel::cli {

/// An option of `varnel run`: where its value goes, how the help describes it, and which reports
/// take it.
struct RunOption {
    using Target = std::variant<bool RunRequest::*, std::string RunRequest::*,
                                std::vector<std::string> RunRequest::*>;

    std::string_view names;  // "-o,--output"
    std::string_view value;  // What the help calls its value: "DATE", "letter|a4"; empty for flags.
    Target target;
    std::string_view help;
    /// Whether a report takes it; null for those of the program, which go with all reports.
    bool (*taken_by)(const ReportEntry& entry, IReport& report) = nullptr;

    /// Its long name: "--output".
    std::string_view LongName() const;
    bool IsGiven(const RunRequest& request) const;
};

std::span<const RunOption> RunOptions();

/// The options of a report's own, in the order of the table; only for a built one.
std::vector<const RunOption*> OptionsOf(const ReportEntry& entry);

}  // namespace varnel::cli
