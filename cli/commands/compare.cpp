#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "cli/commands/arguments.h"
#include "cli/commands/run_arguments.h"
#include "cli/compare_run.h"

namespace varnel::cli {

namespace {

constexpr const char* kFooter =
    "The report is run twice: as the options say, and with what --with-... say instead.\n"
    "What changed from the first run to the second is listed line by line.\n\n"
    "Exit codes: 0 done, changed or not; 1 failed (company, database, output); 2 unknown or\n"
    "malformed argument; 3 the report showed messages, which are on standard error; 130\n"
    "interrupted.\n\n"
    "Examples:\n"
    "  varnel compare trial-balance-summary --company shop.db --to 2024-12-31\n"
    "      --with-to 2025-12-31\n"
    "  varnel compare trial-balance-detail --company backup.db --with-company shop.db";

/// Those that say what the report is about; the others are of its pages.
bool IsCompared(const RunOption& option) {
    static constexpr std::string_view kOthers[] = {"--company", "--session-date", "--lang"};
    if (option.taken_by == nullptr)
        return std::ranges::find(kOthers, option.LongName()) != std::end(kOthers);
    return option.LongName() != "--configure";
}

}  // namespace

Command::Action DescribeCompare(CLI::App& app) {
    auto request = std::make_shared<CompareRequest>();
    app.add_option("REPORT", request->run.report, "The report: " + ComparableReports())
        ->type_name("");
    AddText(app, {"--with-from", "DATE", "First day of the second run; left out: --from"},
            request->with_from);
    AddText(app, {"--with-to", "DATE", "Last day of the second run; left out: --to"},
            request->with_to);
    AddText(app, {"--with-company", "FILE", "Company of the second run; left out: --company"},
            request->with_company);
    for (const auto& option : RunOptions())
        if (IsCompared(option)) AddRunOption(app, option, request->run);
    app.footer(kFooter);
    return [request](Console& console) { return CompareReport(*request, console); };
}

}  // namespace varnel::cli
