#include <CLI/CLI.hpp>
#include <memory>

#include "cli/commands/arguments.h"
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

void AddOption(CLI::App& app, const RunOption& option, RunRequest& request) {
    const Argument argument{std::string(option.names), std::string(option.value),
                            std::string(option.help)};
    if (const auto* flag = std::get_if<bool RunRequest::*>(&option.target)) {
        AddFlag(app, argument, request.**flag);
    } else if (const auto* text = std::get_if<std::string RunRequest::*>(&option.target)) {
        AddText(app, argument, request.**text);
    } else {
        auto& list = request.*std::get<std::vector<std::string> RunRequest::*>(option.target);
        app.add_option(argument.names, list, argument.help)
            ->type_name(argument.value)
            ->expected(1)
            ->take_all();
    }
}

}  // namespace

Command::Action DescribeRun(CLI::App& app) {
    auto request = std::make_shared<RunRequest>();
    app.add_option("REPORT", request->report, "The report")->type_name("");
    for (const auto& option : RunOptions()) AddOption(app, option, *request);
    app.footer(kFooter);
    return [request](Console& console) { return RunReport(*request, console); };
}

}  // namespace varnel::cli
