#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>

#include "cli/commands/arguments.h"
#include "cli/company_argument.h"
#include "cli/errors.h"
#include "cli/interrupt.h"
#include "company/writing/copy_company.h"

namespace varnel::cli {

namespace {

struct CopyRequest {
    std::string from, to;
    bool overwrite = false;
};

void Check(const CopyRequest& request) {
    if (request.from.empty() || request.to.empty())
        throw UsageError("say which company and where to: varnel copy shop.db other.db");
    CheckCompany("copy", request.from);
    CheckNewCompany("copy", request.to, request.overwrite);
}

void PrintLine(const std::string& name, const std::string& rows, const std::string& debits,
               const std::string& credits) {
    std::printf("%-24s %12s %22s %22s\n", name.c_str(), rows.c_str(), debits.c_str(),
                credits.c_str());
}

/// A table a line with its rows; below it what its amounts come to.
void Print(const std::vector<company::CopiedTable>& tables) {
    constexpr int kLeastDecimals = 2;
    PrintLine("Table", "Rows", "Debits", "Credits");
    for (const auto& table : tables) {
        PrintLine(table.name, GroupedCount(table.rows), "", "");
        for (const auto& amounts : table.amounts)
            PrintLine("  " + amounts.column, "", amounts.debits.ToText(kLeastDecimals),
                      amounts.credits.ToText(kLeastDecimals));
    }
}

int Copy(const CopyRequest& request, Console& console) {
    Check(request);
    company::CopyOptions options;
    options.overwrite = request.overwrite;
    options.cancelled = [] { return StopSignal() != 0; };
    options.progress = [&console](const std::string& table, std::int64_t rows) {
        if (console.ProgressIsDue())
            console.ShowProgress(table + ": " + GroupedCount(rows) + " rows");
    };
    options.unfinished_file = SetUnfinishedFile;
    const auto tables = company::CopyCompany(request.from, request.to, options);
    console.EraseProgress();
    Print(tables);
    return kDone;
}

}  // namespace

Command::Action DescribeCopy(CLI::App& app) {
    auto request = std::make_shared<CopyRequest>();
    app.add_option("FROM", request->from, "The company: a file or postgresql://…")->type_name("");
    app.add_option("TO", request->to, "Where to: a file or postgresql://…")->type_name("");
    AddFlag(app, {"--force", "", "Replace a company that is there"}, request->overwrite);
    return [request](Console& console) { return Copy(*request, console); };
}

}  // namespace varnel::cli
