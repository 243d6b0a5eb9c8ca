#include <CLI/CLI.hpp>
#include <memory>

#include "cli/commands/run_arguments.h"
#include "cli/report_run.h"
#include "cli/run_options.h"

namespace varnel::cli {

namespace {

constexpr const char* kFooter =
    "\"varnel reports\" lists the reports and the options that each takes.\n"
    "Without -o the report is shown as text.\n\n"
    "Exit codes: 0 done; 1 failed (company, database, output); 2 unknown or malformed\n"
    "argument; 3 the report showed messages, which are on standard error: the output is\n"
    "written unless no row could be read; 130 interrupted, nothing written.\n\n"
    "Examples:\n"
    "  varnel run general-journal --company shop.db --from 2025-01-01 --to 2025-03-31\n"
    "  varnel run general-journal --company shop.db --segments 3,7 -o journal.pdf\n"
    "  varnel run general-journal --company shop.db -O csv -o - | head";

}  // namespace

Command::Action DescribeRun(CLI::App& app) {
    auto request = std::make_shared<RunRequest>();
    app.add_option("REPORT", request->report, "The report")->type_name("");
    for (const auto& option : RunOptions()) AddRunOption(app, option, *request);
    app.footer(kFooter);
    return [request](Console& console) { return RunReport(*request, console); };
}

}  // namespace varnel::cli
