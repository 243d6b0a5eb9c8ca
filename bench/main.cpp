// Times the reports against their floors, each in a process of its own and in the same run.
//
//   varnel_bench VARNEL FOLDER [LINES…]
//   varnel_bench VARNEL --server ADDRESS
//
// VARNEL is the command's file, FOLDER keeps the demo companies between runs, LINES are numbers of
// lines (10000 100000 1000000): of the journal for the general journal, of the ledger for the other
// reports. ADDRESS is a company on a server, which is measured as it stands. Prints one table a
// size and report.

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/floors.h"
#include "bench/measure.h"
#include "bench/reports.h"
#include "bench/server_floor.h"
#include "bench/wide_chart.h"
#include "company/company_address.h"
#include "company/demo/demo_company.h"

namespace {

using namespace varnel::bench;

struct Subject {
    std::string varnel;
    std::string report;
    std::vector<std::string> options;
    std::string company;
    std::string folder;
    int runs;
};

// About four lines in ten of a demo company are the journal's.
constexpr double kJournalShare = 0.40;

std::string CompanyWith(const std::string& file, double ledger_lines) {
    varnel::company::DemoOptions options;
    options.lines = static_cast<std::int64_t>(ledger_lines);
    if (!std::filesystem::exists(file)) varnel::company::CreateDemoCompany(file, options);
    return file;
}

std::string WideCompany(const std::string& folder, std::int64_t lines) {
    const std::string file = folder + "/wide-" + std::to_string(lines) + ".db";
    if (std::filesystem::exists(file)) return file;
    const std::string unfinished = CompanyWith(file + ".new", static_cast<double>(lines));
    WidenChart(unfinished);
    std::filesystem::rename(unfinished, file);
    return file;
}

std::string JournalCompany(const std::string& folder, std::int64_t journal_lines) {
    return CompanyWith(folder + "/journal-" + std::to_string(journal_lines) + ".db",
                       static_cast<double>(journal_lines) / kJournalShare);
}

std::string LedgerCompany(const std::string& folder, std::int64_t lines) {
    return CompanyWith(folder + "/ledger-" + std::to_string(lines) + ".db",
                       static_cast<double>(lines));
}

int RunsFor(std::int64_t lines) { return lines > 500'000 ? 3 : 5; }

/// What the program takes to start and end, which a floor does not have.
double start_up_seconds = 0;

void PrintRow(const char* name, const Cost& cost, double floor_seconds) {
    std::printf("  %-28s %8.3f s %8.1f MiB", name, cost.seconds, cost.peak_mebibytes);
    if (floor_seconds > 0)
        std::printf(" %8.2f x floor, %5.2f x without start-up", cost.seconds / floor_seconds,
                    (cost.seconds - start_up_seconds) / floor_seconds);
    std::printf("%s\n", cost.failed ? "   FAILED" : "");
    std::fflush(stdout);
}

Cost RunReport(const Subject& subject, const std::string& format, const std::string& output) {
    std::vector<std::string> arguments = {
        subject.varnel, "run", subject.report, "--company",      subject.company, "-O",
        format,         "-o",  output,         "--session-date", "2026-11-01"};
    arguments.insert(arguments.end(), subject.options.begin(), subject.options.end());
    return MeasureProgram(arguments, subject.runs);
}

/// A report without rows.
void MeasureStartUp(const std::string& varnel, const std::string& company) {
    const auto cost = MeasureProgram({varnel, "run", "general-journal", "--company", company,
                                      "--from", "9000-01-01", "-O", "csv", "-o", "/dev/null"},
                                     9);
    start_up_seconds = cost.seconds;
    std::printf("start-up, a report without rows %13.3f s\n\n", cost.seconds);
}

void MeasureFormats(const Subject& subject, const std::string& statement) {
    const auto read = MeasureFunction([&] { ReadRows(subject.company, statement); }, subject.runs);
    PrintRow("floor: bare reading", read, 0);
    for (const char* format : {"csv", "txt", "jsonl"})
        PrintRow(format, RunReport(subject, format, "/dev/null"), read.seconds);
}

void MeasurePages(const Subject& subject) {
    const std::string file = subject.folder + "/pages.pdf";
    const auto pages =
        MeasureFunction([&] { WriteJournalPages(subject.company, file); }, subject.runs);
    const auto cairo =
        MeasureFunction([&] { WriteJournalPagesWithCairo(subject.company, file); }, 1);
    PrintRow("floor: pages, own writer", pages, 0);
    PrintRow("floor: pages, cairo", cairo, 0);
    PrintRow("pdf", RunReport(subject, "pdf", file), pages.seconds);
}

void MeasureJournal(const std::string& varnel, const std::string& folder, std::int64_t lines) {
    const std::string company = JournalCompany(folder, lines);
    const std::int64_t printed = ReadRows(company, kJournalStatement);
    std::printf("general-journal, %" PRId64 " lines\n", printed);
    const Subject subject{varnel, "general-journal", {}, company, folder, RunsFor(printed)};
    MeasureFormats(subject, kJournalStatement);
    MeasurePages(subject);
    const auto start = RunReport(subject, "csv", "-");
    std::printf("  %-28s %8.3f s\n\n", "csv: start to first byte", start.first_byte);
}

void MeasureReport(const ReportCase& report, const std::string& varnel, const std::string& folder,
                   std::int64_t lines) {
    const std::string company =
        report.wide_chart ? WideCompany(folder, lines) : LedgerCompany(folder, lines);
    const std::string statement = report.statement(company);
    const std::int64_t rows = ReadRows(company, statement);
    std::printf("%s, %" PRId64 " rows of a ledger of %" PRId64 " lines\n", report.name.data(), rows,
                lines);
    const Subject subject{
        varnel, std::string(report.name), report.options(company), company, folder, RunsFor(lines)};
    MeasureFormats(subject, statement);
    PrintRow("pdf", RunReport(subject, "pdf", folder + "/pages.pdf"), 0);
    std::printf("\n");
}

void MeasureSize(const std::string& varnel, const std::string& folder, std::int64_t lines) {
    MeasureStartUp(varnel, JournalCompany(folder, lines));
    MeasureJournal(varnel, folder, lines);
    for (const auto& report : ReportCases()) MeasureReport(report, varnel, folder, lines);
}

void MeasureOverServer(const Subject& subject, const std::string& statement) {
    const auto connection = varnel::company::ParseCompanyAddress(subject.company).odbc_connection;
    std::printf("%s, %" PRId64 " rows of the statement\n", subject.report.c_str(),
                FetchRows(connection, statement));
    const auto fetch = MeasureFunction([&] { FetchRows(connection, statement); }, subject.runs);
    PrintRow("floor: bare fetching", fetch, 0);
    for (const char* format : {"csv", "txt", "jsonl"})
        PrintRow(format, RunReport(subject, format, "/dev/null"), fetch.seconds);
    std::printf("\n");
}

void MeasureServer(const std::string& varnel, const std::string& company) {
    constexpr int kRuns = 3;
    MeasureStartUp(varnel, company);
    MeasureOverServer({varnel, "general-journal", {}, company, "", kRuns}, kJournalStatement);
    for (const auto& report : ReportCases())
        if (report.name == "trial-balance-summary" || report.name == "trial-balance-detail")
            MeasureOverServer(
                {varnel, std::string(report.name), report.options(company), company, "", kRuns},
                report.statement(company));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr,
                     "usage: %s VARNEL FOLDER [LINES...]\n       %s VARNEL --server ADDRESS\n",
                     argv[0], argv[0]);
        return 2;
    }
    try {
        if (argc == 4 && std::string(argv[2]) == "--server") {
            MeasureServer(argv[1], argv[3]);
            return 0;
        }
        std::filesystem::create_directories(argv[2]);
        if (argc == 3)
            for (const std::int64_t lines : {10'000, 100'000, 1'000'000})
                MeasureSize(argv[1], argv[2], lines);
        for (int i = 3; i < argc; ++i) MeasureSize(argv[1], argv[2], std::atoll(argv[i]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return 1;
    }
}
