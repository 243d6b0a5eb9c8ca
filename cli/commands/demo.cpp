#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "cli/commands/command.h"
#include "cli/errors.h"
#include "cli/interrupt.h"
#include "company/demo/demo_company.h"

namespace varnel::cli {

namespace {

struct DemoRequest {
    std::string file;
    company::DemoOptions options;
};

void Check(const DemoRequest& request) {
    if (request.file.empty())
        throw UsageError("say where the demo company goes: varnel demo shop.db");
    const auto lines = request.options.lines;
    if (lines < company::kDemoLinesMin || lines > company::kDemoLinesMax)
        throw UsageError("--lines: a demo company has from " +
                         GroupedCount(company::kDemoLinesMin) + " to " +
                         GroupedCount(company::kDemoLinesMax) + " ledger lines");
    std::error_code ignored;
    if (!request.options.overwrite && std::filesystem::exists(request.file, ignored))
        throw Failure(request.file +
                      " exists already: choose another name, or add --force to replace it");
}

int MakeDemo(const DemoRequest& request, Console& console) {
    Check(request);
    auto options = request.options;
    options.progress = [&console](std::int64_t done, std::int64_t lines) {
        if (console.ProgressIsDue())
            console.ShowProgress(GroupedCount(done) + " of " + GroupedCount(lines) + " lines");
        return StopSignal() == 0;
    };
    company::CreateDemoCompany(request.file, options);
    console.EraseProgress();
    std::printf("%s is ready: varnel run general-journal --company %s\n", request.file.c_str(),
                request.file.c_str());
    return kDone;
}

}  // namespace

Command::Action DescribeDemo(CLI::App& app) {
    auto request = std::make_shared<DemoRequest>();
    app.add_option("FILE", request->file, "The database file to make")->type_name("");
    app.add_option("--lines", request->options.lines, "Ledger lines, about")->type_name("N");
    app.add_option("--seed", request->options.seed, "Another number makes another company")
        ->type_name("N");
    app.add_flag("--force", request->options.overwrite, "Replace a file that is there");
    return [request](Console& console) { return MakeDemo(*request, console); };
}

}  // namespace varnel::cli
