// Times the general journal against its floors, each in a process of its own and in the same run.
//
//   varnel_bench VARNEL FOLDER [LINES…]
//
// VARNEL is the command's file, FOLDER keeps the demo companies between runs, LINES are numbers of
// journal lines (10000 100000 1000000). Prints one table a size.

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/floors.h"
#include "bench/measure.h"
#include "company/demo/demo_company.h"

namespace {

using namespace varnel::bench;

struct Subject {
    std::string varnel;
    std::string company;
    std::string folder;
    int runs;
};

// About four lines in ten of a demo company are the journal's.
constexpr double kJournalShare = 0.40;

std::string CompanyWith(const std::string& folder, std::int64_t journal_lines) {
    const std::string file = folder + "/journal-" + std::to_string(journal_lines) + ".db";
    varnel::company::DemoOptions options;
    options.lines = static_cast<std::int64_t>(static_cast<double>(journal_lines) / kJournalShare);
    if (!std::filesystem::exists(file)) varnel::company::CreateDemoCompany(file, options);
    return file;
}

void PrintRow(const char* name, const Cost& cost, double floor_seconds) {
    std::printf("  %-28s %8.3f s %8.1f MiB", name, cost.seconds, cost.peak_mebibytes);
    if (floor_seconds > 0) std::printf(" %8.2f x floor", cost.seconds / floor_seconds);
    std::printf("%s\n", cost.failed ? "   FAILED" : "");
    std::fflush(stdout);
}

Cost RunReport(const Subject& subject, const std::string& format, const std::string& output) {
    return MeasureProgram({subject.varnel, "run", "general-journal", "--company", subject.company,
                           "-O", format, "-o", output, "--session-date", "2026-11-01"},
                          subject.runs);
}

void MeasureFormats(const Subject& subject) {
    const auto read = MeasureFunction([&] { ReadJournal(subject.company); }, subject.runs);
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

void MeasureSize(const std::string& varnel, const std::string& folder, std::int64_t lines) {
    const std::string company = CompanyWith(folder, lines);
    const std::int64_t printed = CountJournalLines(company);
    std::printf("general journal, %" PRId64 " lines\n", printed);
    const Subject subject{varnel, company, folder, printed > 500'000 ? 3 : 5};
    MeasureFormats(subject);
    MeasurePages(subject);
    const auto start = RunReport(subject, "csv", "-");
    std::printf("  %-28s %8.3f s\n\n", "csv: start to first byte", start.first_byte);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s VARNEL FOLDER [LINES...]\n", argv[0]);
        return 2;
    }
    try {
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
