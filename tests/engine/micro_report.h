#pragma once

#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "engine/engine.h"
#include "host/banded_report.h"

namespace varnel::engine {

using Names = std::vector<std::string>;
using PageTexts = std::vector<Names>;

inline Names Split(const std::string& text, char separator) {
    Names words;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, separator);) words.push_back(word);
    return words;
}

/// Rows written as "A 1|A 2|~ 3"; "~" is null. Fails at the move on to row `fails_at`.
class CannedRows final : public Recordset {
  public:
    CannedRows(const std::string& columns, const std::string& rows, int fails_at = -1)
        : columns_(Split(columns, ' ')), fails_at_(fails_at) {
        for (const auto& line : Split(rows, '|')) {
            Row& row = rows_.emplace_back();
            for (const auto& cell : Split(line, ' '))
                cell == "~" ? row.AddNull() : row.AddText(cell);
        }
    }
    const Columns& GetColumns() const override { return columns_; }
    bool AtEnd() const override { return place_ == rows_.size(); }
    // Moved on to in place, as a driver does: whoever keeps a reference sees it change.
    const Row& Current() const override { return current_ = rows_[place_]; }
    void MoveNext() override {
        if (static_cast<int>(++place_) == fails_at_) throw std::runtime_error("cable cut");
    }
    void MoveFirst() override { place_ = 0; }

  private:
    Columns columns_;
    std::vector<Row> rows_;
    mutable Row current_;
    std::size_t place_ = 0;
    int fails_at_;
};

inline SectionLayout Band(std::string_view name, SectionKind kind, std::string_view text = {},
                          std::string_view data_field = {}) {
    return {.name = name,
            .kind = kind,
            .height = 100,
            .controls = {
                {.name = name, .box = {0, 0, 1000, 100}, .text = text, .data_field = data_field}}};
}

/// All bands 100 high with one text each: "RH", "PH", group headers h0 to h2 with the value of
/// g0 to g2, the line, group footers f0 to f2 with "end " and the value, "PF", "RF".
inline Layout MicroLayout(std::size_t groups) {
    constexpr std::string_view kHeaders[] = {"h0", "h1", "h2"};
    constexpr std::string_view kFooters[] = {"f0", "f1", "f2"};
    constexpr std::string_view kFields[] = {"g0", "g1", "g2"};
    Layout layout{.name = "micro", .width = 1000, .sections = {}};
    auto& sections = layout.sections;
    sections.push_back(Band("reportHeader", SectionKind::kReportHeader, "RH"));
    sections.push_back(Band("pageHeader", SectionKind::kPageHeader, "PH"));
    for (std::size_t i = 0; i < groups; ++i) {
        sections.push_back(Band(kHeaders[i], SectionKind::kGroupHeader, {}, kFields[i]));
        sections.back().group_field = kFields[i];
    }
    sections.push_back(Band("detail", SectionKind::kDetail, {}, "line"));
    for (std::size_t i = groups; i-- > 0;)
        sections.push_back(Band(kFooters[i], SectionKind::kGroupFooter, {}, kFields[i]));
    sections.push_back(Band("pageFooter", SectionKind::kPageFooter, "PF"));
    sections.push_back(Band("reportFooter", SectionKind::kReportFooter, "RF"));
    return layout;
}

/// The section of that name, to change the layout before the report is made of it.
inline SectionLayout& Design(Layout& layout, std::string_view name) {
    for (auto& section : layout.sections)
        if (section.name == name) return section;
    throw std::invalid_argument("no such section");
}

inline Layout Without(Layout layout, const Names& names) {
    for (const auto& name : names)
        std::erase_if(layout.sections, [&](const auto& section) { return section.name == name; });
    return layout;
}

/// A report that logs its events: names of events, and "section text" for each format event.
class MicroReport : public BandedReport {
  public:
    explicit MicroReport(Layout layout, std::string columns = {}, std::string rows = {})
        : layout_(std::move(layout)),
          surface_(layout_),
          columns_(std::move(columns)),
          rows_(std::move(rows)) {
        for (auto& section : surface_.Sections())
            section.OnFormat([this, &section] { Format(section); });
    }

    std::string_view ObjectName() const override { return "micro"; }
    Surface& GetSurface() override { return surface_; }
    ReportData& Data() override { return data_; }
    /// What to do in a section's format event.
    void On(const std::string& section, std::function<void()> handler) {
        handlers_[section] = std::move(handler);
    }
    Section& SectionOf(std::string_view name) { return surface_.SectionAt(name); }
    Control& TextOf(std::string_view name) { return surface_.At(name); }

    void ActiveReport_Initialize() override { log.emplace_back("Initialize"); }
    void ActiveReport_ReportStart() override {
        log.emplace_back("ReportStart");
        if (!columns_.empty())
            data_.Attach(std::make_shared<CannedRows>(columns_, rows_, fails_at));
    }
    void ActiveReport_DataInitialize() override { log.emplace_back("DataInitialize"); }
    void ActiveReport_FetchData(bool& end_of_data) override {
        log.emplace_back(end_of_data ? "FetchData end" : "FetchData");
        if (on_fetch) on_fetch(end_of_data);
    }
    void ActiveReport_Terminate() override { log.emplace_back("Terminate"); }

    /// How often the section was formatted.
    long Formats(const std::string& section) const {
        long count = 0;
        for (const auto& entry : log) count += entry.rfind(section + " ", 0) == 0 ? 1 : 0;
        return count;
    }

    Names log;
    std::function<void(bool&)> on_fetch;
    int fails_at = -1;

  private:
    void Format(Section& section) {
        const std::string name(section.Name());
        if (section.Kind() == SectionKind::kGroupFooter)
            TextOf(name).SetText("end " + TextOf(name).Text());
        log.push_back(name + " " + (surface_.Find(name) ? TextOf(name).Text() : ""));
        if (handlers_.count(name) != 0) handlers_[name]();
    }

    Layout layout_;
    Surface surface_;
    ReportData data_;
    std::string columns_, rows_;
    std::map<std::string, std::function<void()>> handlers_;
};

/// Logs the text of each printed section, indented by depth.
class BandLog final : public BandSink {
  public:
    void Begin(const DocumentInfo&, const Surface&) override { bands.emplace_back("begin"); }
    void Write(const Section& section, const BandMark& mark) override {
        if (!mark.printed) return;
        std::string entry(static_cast<std::size_t>(mark.depth), '>');
        bands.push_back(entry + std::string(section.Controls().front().Text()));
    }
    void End() override { bands.emplace_back("end"); }
    Names bands;
};

class PlacedLog final : public PlacedBandSink {
  public:
    void Begin(const DocumentInfo&, Twips page_width) override { width = page_width; }
    void Write(const PlacedBand& band) override { bands.push_back(band); }
    void End() override {}
    Twips width = 0;
    std::vector<PlacedBand> bands;
};

/// Every character is 100 wide, every line 100 high.
class GridMeasurer final : public Measurer {
  public:
    Twips LineHeight(const TextStyle&) override { return 100; }
    void BreakLines(std::string_view text, const TextStyle&, Twips width,
                    std::vector<std::string_view>& lines) override {
        const auto length = static_cast<std::size_t>(width / 100);
        do {
            lines.push_back(text.substr(0, length));
            text.remove_prefix(std::min(length, text.size()));
        } while (!text.empty());
    }
};

inline Names TextsOf(const ItemList& content) {
    Names texts;
    for (const auto& item : content.Items()) texts.emplace_back(content.Text(item));
    return texts;
}

/// Paper for `bands` bands of 100, without margins.
inline PageSetup PaperFor(int bands) { return {1000, bands * 100, 0, 0, 0}; }

/// Runs the report and gives the pages of the run.
inline std::vector<Page> PagesOf(BandedReport& report, const PageSetup& setup) {
    GridMeasurer measurer;
    PageStore store;
    RunToPages(report, setup, measurer, store);
    std::vector<Page> pages(static_cast<std::size_t>(store.Count()));
    for (int i = 0; i < store.Count(); ++i) store.Read(i, pages[static_cast<std::size_t>(i)]);
    return pages;
}

/// The texts of each page, in print order.
inline PageTexts TextsOfPages(BandedReport& report, const PageSetup& setup) {
    PageTexts texts;
    for (const auto& page : PagesOf(report, setup)) texts.push_back(TextsOf(page.content));
    return texts;
}

inline Names BandsOf(BandedReport& report) {
    BandLog sink;
    RunToBands(report, {}, sink);
    return sink.bands;
}

}  // namespace varnel::engine
