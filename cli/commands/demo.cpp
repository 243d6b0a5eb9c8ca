#include <CLI/CLI.hpp>
#include <charconv>
#include <cstdio>
#include <memory>

#include "cli/commands/arguments.h"
#include "cli/company_argument.h"
#include "cli/errors.h"
#include "cli/interrupt.h"
#include "company/demo/demo_company.h"

namespace varnel::cli {

namespace {

struct DemoRequest {
    std::string company;
    company::DemoOptions options;
};

void Check(const DemoRequest& request) {
    if (request.company.empty())
        throw UsageError("say where the demo company goes: varnel demo shop.db");
    const auto lines = request.options.lines;
    if (lines < company::kDemoLinesMin || lines > company::kDemoLinesMax)
        throw UsageError("--lines: a demo company has from " +
                         GroupedCount(company::kDemoLinesMin) + " to " +
                         GroupedCount(company::kDemoLinesMax) + " ledger lines");
    CheckNewCompany("demo", request.company, request.options.overwrite);
}

int MakeDemo(const DemoRequest& request, Console& console) {
    Check(request);
    auto options = request.options;
    options.progress = [&console](std::int64_t done, std::int64_t lines) {
        if (console.ProgressIsDue())
            console.ShowProgress(GroupedCount(done) + " of " + GroupedCount(lines) + " lines");
    };
    options.cancelled = [] { return StopSignal() != 0; };
    options.unfinished_file = SetUnfinishedFile;
    company::CreateDemoCompany(request.company, options);
    console.EraseProgress();
    const std::string quote =
        request.company.find_first_of(" ;{}&?") != std::string::npos ? "'" : "";
    std::printf("%s is ready: varnel run general-journal --company %s\n", request.company.c_str(),
                (quote + request.company + quote).c_str());
    return kDone;
}

template <class Integer>
void AddNumber(CLI::App& app, const Argument& argument, Integer& target) {
    AddValue(app, argument, [&target](const std::string& value) {
        const auto* end = value.data() + value.size();
        const auto read = std::from_chars(value.data(), end, target);
        const bool whole = read.ec == std::errc{} && read.ptr == end;
        return whole ? std::string() : value + " is no number; write it in digits, as 12000";
    });
}

}  // namespace

Command::Action DescribeDemo(CLI::App& app) {
    auto request = std::make_shared<DemoRequest>();
    app.add_option("FILE", request->company,
                   "The database file to make, or\npostgresql://user@host/database")
        ->type_name("");
    auto& options = request->options;
    AddNumber(app, {"--lines", "N", "Ledger lines, about"}, options.lines);
    AddNumber(app, {"--seed", "N", "Another number makes another company"}, options.seed);
    AddFlag(app, {"--force", "", "Replace a company that is there"}, options.overwrite);
    return [request](Console& console) { return MakeDemo(*request, console); };
}

}  // namespace varnel::cli
