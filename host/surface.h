#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "host/currency.h"
#include "host/date.h"
#include "host/layout.h"
#include "host/object.h"
#include "host/rate.h"

namespace varnel {

class BandedReport;

/// What stands behind a printed text, for spreadsheets and data exports: an amount, a date, a
/// count, an exchange rate, or nothing.
using ControlValue = std::variant<std::monostate, Currency, Date, std::int32_t, Rate>;

/// A live control: what handlers and late-bound hosts change. Geometry in twips, relative to its
/// section.
class Control final : public Object {
  public:
    explicit Control(const ControlLayout& layout);

    std::string_view ObjectName() const override { return layout_->name; }
    /// "Text" and "Caption" (the same), "Visible", "Left", "Top", "Width", "Height", "Tag", "Name".
    Variant Get(std::string_view name) override;
    void Put(std::string_view name, const Variant& value) override;

    const ControlLayout& Design() const { return *layout_; }
    const std::string& Text() const { return state_.text; }
    const ControlValue& Value() const { return state_.value; }
    const std::string& Tag() const { return state_.tag; }

    /// Replaces the text; the value that stood behind the former one goes.
    void SetText(std::string_view text) {
        state_.text = text;
        state_.value = std::monostate{};
    }
    /// Text and value in one call, so that exports carry what is printed.
    void SetValue(ControlValue value, std::string_view text) {
        state_.text = text;
        state_.value = value;
    }
    void Clear() { SetText({}); }
    /// The drill-down key: what the host opens when this control is chosen. Empty is no drill-down.
    void SetTag(std::string_view tag) { state_.tag = tag; }

    bool Visible() const { return state_.visible; }
    void SetVisible(bool visible) { state_.visible = visible; }
    const TextStyle& Style() const { return state_.style; }
    void SetBold(bool bold) { state_.style.bold = bold; }
    const Box& Place() const { return state_.box; }
    void SetPlace(const Box& box) { state_.box = box; }
    void SetLeft(Twips left) { state_.box.left = left; }
    void SetTop(Twips top) { state_.box.top = top; }
    void SetWidth(Twips width) { state_.box.width = width; }
    void SetHeight(Twips height) { state_.box.height = height; }

    /// The report inside a kSubReport control; null takes no space.
    const std::shared_ptr<BandedReport>& SubReport() const { return state_.sub_report; }
    void SetSubReport(std::shared_ptr<BandedReport> report) {
        state_.sub_report = std::move(report);
    }

  private:
    friend class Surface;
    struct State {
        std::string text;
        ControlValue value;
        std::string tag;
        bool visible = true;
        TextStyle style;
        Box box;
        std::shared_ptr<BandedReport> sub_report;
    };

    const ControlLayout* layout_;
    State state_;
};

/// A live section. `visible` and `height` persist until a handler changes them again; `Skip` is for
/// this instance.
class Section {
  public:
    explicit Section(const SectionLayout& layout);

    const SectionLayout& Design() const { return *layout_; }
    std::string_view Name() const { return layout_->name; }
    SectionKind Kind() const { return layout_->kind; }
    std::vector<Control>& Controls() { return controls_; }
    const std::vector<Control>& Controls() const { return controls_; }

    bool Visible() const { return state_.visible; }
    void SetVisible(bool visible) { state_.visible = visible; }
    Twips Height() const { return state_.height; }
    void SetHeight(Twips height) { state_.height = height; }
    /// Leaves this one instance out: no space, nothing printed. Its row still counts for groups.
    void Skip() { skipped_ = true; }
    /// No page break between this one instance and what follows it, or what it follows.
    void KeepWithNext() { keeps_with_next_ = true; }
    void KeepWithPrevious() { keeps_with_previous_ = true; }
    bool KeepsWithNext() const { return keeps_with_next_; }
    bool KeepsWithPrevious() const { return keeps_with_previous_; }

    /// The handler of the format event; one per section.
    void OnFormat(std::function<void()> handler) { on_format_ = std::move(handler); }
    /// For the engine: raises the event. True when the instance is to be printed.
    bool Format();

  private:
    friend class Surface;
    struct State {
        bool visible = true;
        Twips height = 0;
    };

    const SectionLayout* layout_;
    State state_;
    bool skipped_ = false;
    bool keeps_with_next_ = false;
    bool keeps_with_previous_ = false;
    std::vector<Control> controls_;
    std::function<void()> on_format_;
};

/// The live copy of a layout. Sections and controls never move: references to them stay valid as
/// long as it lives.
class Surface {
  public:
    /// The layout must outlive the surface. Raises error 5 for a layout that is not well formed.
    explicit Surface(const Layout& layout);
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    const Layout& Design() const { return *layout_; }
    Twips Width() const { return width_; }
    std::vector<Section>& Sections() { return sections_; }

    /// The control or section of that name; an unknown one raises error 438 naming the layout, so
    /// that a report whose names do not match its layout cannot be built.
    Control& At(std::string_view name);
    Section& SectionAt(std::string_view name);
    Control* Find(std::string_view name);

    /// Spreads or shifts the controls over a page that is wider than the design, as each control's
    /// Stretch says.
    void Widen(Twips width);
    /// Keep what is set now, and go back to it: a run starts from what the host has set, not from
    /// the last run.
    void Save();
    void Restore();

  private:
    const Layout* layout_;
    Twips width_;
    std::vector<Section> sections_;
    struct Saved {
        Twips width;
        std::vector<Section::State> sections;
        std::vector<Control::State> controls;
    };
    Saved saved_;
};

}  // namespace varnel
