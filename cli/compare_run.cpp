#include "cli/compare_run.h"

#include <unistd.h>

#include <memory>
#include <optional>

#include "cli/comparison/comparison.h"
#include "cli/errors.h"
#include "cli/output_file.h"
#include "cli/report_run.h"
#include "cli/run_monitor.h"

namespace varnel::cli {

namespace {

/// Throws the bands away and passes on what the comparison, if there is one, has written meanwhile.
class DroppedBands final : public engine::BandSink {
  public:
    DroppedBands() = default;
    DroppedBands(Comparison& comparison, OutputFile& output)
        : comparison_(&comparison), output_(&output) {}

    void Begin(const engine::DocumentInfo&, const Surface&) override {}
    void Write(const Section&, const engine::BandMark&) override {
        if (comparison_ != nullptr) comparison_->HandOver(*output_);
    }
    void End() override {}

  private:
    Comparison* comparison_ = nullptr;
    OutputFile* output_ = nullptr;
};

bool Compares(const ReportEntry& entry) {
    return dynamic_cast<IComparableReport*>(SampleReport(entry).get()) != nullptr;
}

void RefuseIncomparable(const ReportEntry& entry) {
    if (!Compares(entry))
        throw UsageError(std::string(entry.name) +
                         " gives nothing to compare; these reports do: " + ComparableReports());
}

RunRequest OtherRequest(const CompareRequest& request) {
    if (request.with_from.empty() && request.with_to.empty() && request.with_company.empty())
        throw UsageError("say what to compare with: --with-from and --with-to, or --with-company");
    RunRequest other = request.run;
    if (!request.with_from.empty()) other.from = request.with_from;
    if (!request.with_to.empty()) other.to = request.with_to;
    if (!request.with_company.empty()) other.company = request.with_company;
    return other;
}

RunSettings ReadOtherSettings(const RunRequest& other) {
    try {
        return ReadSettings(other);
    } catch (const UsageError& error) {
        throw UsageError("in what is compared with: " + std::string(error.what()));
    }
}

std::string About(const engine::DocumentInfo& info, const RunSettings& settings) {
    std::string text = info.company;
    if (settings.from != kOpenStart) text += ", from " + settings.from.ToIso();
    if (settings.to != kOpenEnd) text += ", to " + settings.to.ToIso();
    return text;
}

/// Runs the report with that sink; false when it could not start.
bool RunInto(std::shared_ptr<ComparableReportSink> sink, const PreparedReport& prepared,
             const engine::DocumentInfo& info, DroppedBands& bands, Console& console) {
    dynamic_cast<IComparableReport&>(*prepared.report)
        .IComparableReport_ComparableReportGen(std::move(sink));
    RunMonitor monitor(console, *prepared.host);
    auto& report = *prepared.report->IReport_ReportDesigner();
    return monitor.Watch("RunInto",
                         [&] { return engine::RunToBands(report, info, bands, &monitor); });
}

/// A side of the comparison: a run as it was asked for.
struct Side {
    const ReportEntry& entry;
    const RunRequest& request;
    const RunSettings& settings;
    MessageLog& log;
    Console& console;
};

/// The rows of the side, and what they are about; nothing when it could not be run.
std::optional<std::string> Hold(const Side& side, const std::shared_ptr<HeldRows>& rows) {
    const auto prepared = PrepareReport(side.entry, side.request, side.settings, side.log);
    if (prepared.report == nullptr) return std::nullopt;
    const auto info = InfoOf(*prepared.report, *prepared.host, side.settings.language);
    DroppedBands bands;
    if (!RunInto(rows, prepared, info, bands, side.console)) {
        if (!side.log.Lost()) PointAtFilter(side.entry, side.request.filter, side.console);
        return std::nullopt;
    }
    return About(info, side.settings);
}

/// Writes how the side differs from those rows.
int WriteChanges(const Side& side, HeldRows& rows, const std::string& about, OutputFile& output) {
    const auto prepared = PrepareReport(side.entry, side.request, side.settings, side.log);
    if (prepared.report == nullptr) return Conclude(side.log, false, side.console);
    const auto info = InfoOf(*prepared.report, *prepared.host, side.settings.language);
    const auto comparison = std::make_shared<Comparison>(rows, prepared.host->GetFormats());
    comparison->Head(info.title, about, About(info, side.settings));
    DroppedBands bands(*comparison, output);
    const bool written = RunInto(comparison, prepared, info, bands, side.console);
    if (written) {
        comparison->Finish(output);
        output.Commit();
    } else if (!side.log.Lost()) {
        PointAtFilter(side.entry, side.request.filter, side.console);
    }
    return Conclude(side.log, written, side.console);
}

}  // namespace

std::string ComparableReports() {
    std::string names;
    for (const auto& entry : Reports())
        if (Compares(entry)) names += (names.empty() ? "" : " ") + std::string(entry.name);
    return names;
}

int CompareReport(const CompareRequest& request, Console& console) {
    const ReportEntry& entry = FindReport(request.run.report);
    RefuseIncomparable(entry);
    const RunRequest other = OtherRequest(request);
    const RunSettings settings = ReadSettings(request.run);
    const RunSettings other_settings = ReadOtherSettings(other);
    CheckRequest(entry, request.run, settings, ChooseFormat(request.run));
    CheckRequest(entry, other, other_settings, ChooseFormat(other));
    if (IsTerminal(STDOUT_FILENO)) console.SwitchProgressOff();

    MessageLog log(console);
    OutputFile output("-");
    const auto rows = std::make_shared<HeldRows>();
    const auto about = Hold({entry, request.run, settings, log, console}, rows);
    if (!about) return Conclude(log, false, console);
    return WriteChanges({entry, other, other_settings, log, console}, *rows, *about, output);
}

}  // namespace varnel::cli
