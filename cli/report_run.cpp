#include "cli/report_run.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "cli/company_argument.h"
#include "cli/configure_options.h"
#include "cli/configure_report.h"
#include "cli/cumulative_period.h"
#include "cli/dialogs/terminal_ability.h"
#include "cli/errors.h"
#include "cli/formats.h"
#include "cli/interrupt.h"
#include "cli/message_log.h"
#include "cli/nearest_name.h"
#include "cli/output_file.h"
#include "cli/reconciliation_figures.h"
#include "cli/report_subject.h"
#include "cli/report_table.h"
#include "cli/run_monitor.h"
#include "cli/run_options.h"
#include "cli/told_place.h"
#include "company/company_address.h"
#include "company/company_host.h"
#include "host/error.h"

namespace varnel::cli {

namespace {

constexpr const char* kCreator = "varnel " VARNEL_VERSION;

void RefuseOtherOptions(const ReportEntry& entry, const RunRequest& request) {
    const auto report = SampleReport(entry);
    for (const auto& option : RunOptions()) {
        if (option.taken_by == nullptr || !option.IsGiven(request)) continue;
        if (!option.taken_by(entry, *report))
            throw UsageError(std::string(entry.name) + " takes no " +
                             std::string(option.LongName()) +
                             "\n\"varnel reports\" lists the options that each report takes");
    }
}

bool IsShownOnTerminal(const RunRequest& request) {
    return (request.output.empty() || request.output == "-") && IsTerminal(STDOUT_FILENO);
}

void CheckFiles(const RunRequest& request, const OutputFormat& format) {
    if (request.company.empty())
        throw UsageError("say which company: --company FILE (\"varnel demo FILE\" makes one)");
    CheckCompany("--company", request.company);
    if (!format.is_text && IsShownOnTerminal(request))
        throw UsageError("a terminal cannot show " + std::string(format.name) + ": add -o FILE." +
                         std::string(format.name));
    std::error_code ignored;
    if (std::filesystem::equivalent(request.output, request.company, ignored))
        throw UsageError("-o: " + request.output + " is the company itself; choose another file");
}

void CheckTerminal(const RunRequest& request) {
    if (request.configure && !TerminalShowsDialogs())
        throw UsageError(
            "--configure needs a terminal to show the dialog on; "
            "without one set its check boxes by --option NAME=yes");
}

void UseRates(company::CompanyHost& host, const RunSettings& settings) {
    try {
        host.CurrentCompany().UseRates(settings.rates);
    } catch (const Error& error) {
        throw UsageError("--rate: " + error.Description());
    }
}

/// A file that is not there has a sentence that says all.
std::shared_ptr<company::CompanyHost> Open(const std::string& address,
                                           const company::HostOptions& options) {
    const auto open = [&] { return company::OpenCompany(address, options); };
    if (!company::ParseCompanyAddress(address).IsServer()) return open();
    return TellingPlace("Open", open);
}

std::shared_ptr<company::CompanyHost> OpenHost(const RunRequest& request,
                                               const RunSettings& settings, MessageLog& log,
                                               std::shared_ptr<DialogService> dialogs) {
    company::HostOptions options;
    options.language = settings.language;
    options.session_date = settings.session_date;
    options.database_type = settings.database_type;
    const auto database = std::make_shared<const CompanyDatabase*>(nullptr);
    options.message_sink = [&log, database](const std::string& text) {
        if (StopSignal() != 0) return;  // Queries end in errors that are no news.
        if (*database != nullptr && (*database)->IsLost()) return log.AddLoss(text);
        log.Add(text);
    };
    options.cancelled = [] { return StopSignal() != 0; };
    options.missing_text = [&log](std::int16_t number) { log.AddMissingText(number); };
    options.dialogs = std::move(dialogs);
    auto host = Open(request.company, options);
    *database = &host->Database();
    UseRates(*host, settings);
    SetRunningHost(host);
    return host;
}

OutputLayout LayoutOf(const RunRequest& request, const RunSettings& settings) {
    OutputLayout layout{.page = settings.page};
    if (!IsShownOnTerminal(request)) return layout;
    layout.columns = TerminalColumns();
    layout.bold = UsesTerminalStyles();
    return layout;
}

}  // namespace

engine::DocumentInfo InfoOf(IReport& report, company::CompanyHost& host,
                            const std::string& language) {
    const bool french = host.Language() == company::Language::kFrench;
    return {.title = report.IReport_ReportTitle(),
            .company = host.CurrentCompany().Name(),
            .language = !language.empty() ? language
                        : french          ? "fr-CA"
                                          : "en-CA",
            .creator = kCreator,
            .date = host.SessionDate().ToIso()};
}

int Conclude(const MessageLog& log, bool written, Console& console) {
    if (!written) ThrowIfInterrupted();
    if (log.Count() == 0) return kDone;
    std::string text = "the report showed " + GroupedCount(log.Count()) +
                       (log.Count() == 1 ? " message" : " messages");
    if (!written) text += "; nothing was written";
    console.Say(text);
    return log.Lost() ? kFailed : kMessagesShown;
}

void PointAtFilter(const ReportEntry& entry, const std::string& filter, Console& console) {
    if (filter.empty() || entry.filter_gives_rates || StopSignal() != 0) return;
    console.Say("in --filter \"" + filter +
                "\", look at the names of columns, the operators and the quotes");
}

void CheckRequest(const ReportEntry& entry, const RunRequest& request, const RunSettings& settings,
                  const OutputFormat& format) {
    RefuseOtherOptions(entry, request);
    RequireSubject(entry, request);
    RefuseFigures(entry, settings);
    CheckFiles(request, format);
    CheckTerminal(request);
}

PreparedReport PrepareReport(const ReportEntry& entry, const RunRequest& request,
                             const RunSettings& settings, MessageLog& log) {
    const auto told_before = log.Count();
    const auto dialogs = std::make_shared<RunDialogs>();
    const auto host = OpenHost(request, settings, log, dialogs);
    const auto report = MakeReport(entry, entry.arguments(settings, *host));
    if (report == nullptr) return {host, nullptr};
    TellingPlace("PrepareReport", [&] {
        PutSubject(*report, entry, *host, request);
        PutCumulativePeriod(*report, entry, host->CurrentCompany(), settings);
        ConfigureReport(*report, host, request, settings);
        PutReconciliation(*report, entry, *host, request, settings);
    });
    auto* const config = dynamic_cast<IReportConfig*>(report.get());
    if (config != nullptr && log.Count() == told_before)
        ConfigureOptions(*config, *dialogs, settings.options, request.configure);
    return {host, log.Count() == told_before ? report : nullptr};
}

int RunReport(const RunRequest& request, Console& console) {
    const ReportEntry& entry = FindReport(request.report);
    const RunSettings settings = ReadSettings(request);
    const OutputFormat& format = ChooseFormat(request);
    CheckRequest(entry, request, settings, format);
    if (IsShownOnTerminal(request)) console.SwitchProgressOff();

    MessageLog log(console);
    const auto [host, report] = PrepareReport(entry, request, settings, log);
    if (report == nullptr) return Conclude(log, false, console);

    OutputFile output(request.output.empty() ? "-" : request.output);
    RunMonitor monitor(console, *host);
    const auto info = InfoOf(*report, *host, settings.language);
    auto& designer = *report->IReport_ReportDesigner();
    const auto layout = LayoutOf(request, settings);
    const bool written = monitor.Watch(
        "RunReport", [&] { return format.write(designer, info, layout, output, monitor); });
    if (written)
        output.Commit();
    else if (!log.Lost())
        PointAtFilter(entry, request.filter, console);
    return Conclude(log, written, console);
}

}  // namespace varnel::cli
