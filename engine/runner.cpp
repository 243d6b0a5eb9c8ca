#include "engine/runner.h"

#include <string>

#include "engine/feed.h"
#include "engine/groups.h"
#include "host/error.h"

namespace varnel::engine {

namespace {

[[noreturn]] void RaiseRunning(const BandedReport& report) {
    const std::string name(report.ObjectName());
    Raise(error_number::kInvalidArgument, name,
          "The report " + name +
              " is running already; wait until it is through, or run another object of it");
}

/// Puts everything back after a run. A report that is running already is refused untouched: a
/// handler of it, or something inside it, asks for it again.
class RunScope {
  public:
    explicit RunScope(BandedReport& report) : report_(report) {
        if (report_.Data().Running()) RaiseRunning(report_);
        report_.GetSurface().Save();
        report_.Data().Clear();
        report_.Data().SetRunning(true);
    }
    RunScope(const RunScope&) = delete;
    RunScope& operator=(const RunScope&) = delete;
    ~RunScope() {
        report_.GetSurface().Restore();
        report_.Data().Show(nullptr, nullptr);
        report_.Data().Attach(nullptr);
        report_.Data().SetRunning(false);
    }

  private:
    BandedReport& report_;
};

/// The order of events of one run.
class Runner final : public PageFrame {
  public:
    Runner(BandedReport& report, SectionSink& sink, RunControl& control, int depth)
        : report_(report),
          sink_(sink),
          control_(control),
          depth_(depth),
          parts_(report.GetSurface()),
          feed_(report, parts_.Depth() > 0),
          page_header_(parts_.Single(SectionKind::kPageHeader)),
          page_footer_(parts_.Single(SectionKind::kPageFooter)) {}

    void Run();

    const Part* FormatHeader() override { return FormatSingle(page_header_); }
    const Part* FormatFooter() override { return FormatSingle(page_footer_); }
    Twips FooterHeight() const override {
        const bool visible = page_footer_ != nullptr && page_footer_->section->Visible();
        return visible ? page_footer_->section->Height() : 0;
    }

  private:
    void Resolve(bool has_record);
    void WalkRows();
    bool NextRecord(int& changed);
    void OpenGroups(int from);
    void CloseGroups(int from);
    void Show(const Record& record);
    void RefreshBoundTexts(Part& part);
    bool Format(Part& part);
    void Write(Part& part) { sink_.Write(part, Format(part)); }
    void WriteSingle(SectionKind kind);
    const Part* FormatSingle(Part* part);

    BandedReport& report_;
    SectionSink& sink_;
    RunControl& control_;
    int depth_;
    Parts parts_;
    Feed feed_;
    Groups groups_;
    Part* page_header_;
    Part* page_footer_;
    Record shown_;
    std::string text_;
};

void Runner::Run() {
    sink_.Begin(report_.GetSurface(), *this);
    const bool has_record = feed_.Fetch();
    Resolve(has_record);
    Show(feed_.Current());
    WriteSingle(SectionKind::kReportHeader);
    sink_.BeginBody();
    if (has_record) WalkRows();
    if (control_.Cancelled()) return;
    Show({});
    WriteSingle(SectionKind::kReportFooter);
    sink_.End();
}

// A report that could not get its rows has no columns either, and prints as an empty one.
void Runner::Resolve(bool has_record) {
    if (!has_record && report_.Data().Rows() == nullptr) return;
    groups_.Resolve(report_.Data(), report_.GetSurface().Design());
    parts_.Bind(report_.Data());
}

void Runner::WalkRows() {
    int changed = 0;
    bool more = true;
    while (more) {
        OpenGroups(changed);
        Write(parts_.Detail());
        if (depth_ == 0)
            control_.CountRow();
        else
            control_.Tick();
        more = NextRecord(changed);
    }
}

/// Fetches, and closes the groups that the last record ends; they see that record.
bool Runner::NextRecord(int& changed) {
    if (control_.Cancelled()) return false;
    const bool more = feed_.Fetch();
    changed = more ? groups_.FirstChange(feed_.Previous(), feed_.Current()) : 0;
    if (changed < groups_.Depth()) {
        Show(feed_.Previous());
        CloseGroups(changed);
    }
    Show(feed_.Current());
    return more;
}

void Runner::OpenGroups(int from) {
    for (int level = from; level < groups_.Depth(); ++level) Write(parts_.Header(level));
}

void Runner::CloseGroups(int from) {
    for (int level = groups_.Depth() - 1; level >= from; --level) Write(parts_.Footer(level));
}

void Runner::Show(const Record& record) {
    shown_ = record;
    feed_.Show(record);
}

void Runner::RefreshBoundTexts(Part& part) {
    for (auto& [control, field] : part.bindings) {
        text_.clear();
        if (shown_.Present()) shown_.Holding(field).AppendText(field.column, text_);
        control->SetText(text_);
    }
}

bool Runner::Format(Part& part) {
    RefreshBoundTexts(part);
    return part.section->Format();
}

void Runner::WriteSingle(SectionKind kind) {
    if (Part* part = parts_.Single(kind)) Write(*part);
}

const Part* Runner::FormatSingle(Part* part) {
    return part != nullptr && Format(*part) ? part : nullptr;
}

}  // namespace

void RunReport(BandedReport& report, SectionSink& sink, RunControl& control, int depth) {
    const RunScope scope(report);
    try {
        report.ActiveReport_Initialize();
        report.ActiveReport_ReportStart();
        report.ActiveReport_DataInitialize();
        Runner(report, sink, control, depth).Run();
    } catch (...) {
        report.ActiveReport_Terminate();
        throw;
    }
    report.ActiveReport_Terminate();
}

}  // namespace varnel::engine
