#include "engine/band_composer.h"

#include <algorithm>

#include "engine/runner.h"

namespace varnel::engine {

namespace {

/// Stacks the bands of a sub-report.
class BandStack final : public EndlessSink {
  public:
    BandStack(BandComposer& composer, Twips width, PlacedBand& band, ItemList& content)
        : composer_(composer), width_(width), band_(band), content_(content) {}
    Twips Height() const { return height_; }

  private:
    void Start(Surface& surface) override { surface.Widen(width_); }
    void Take(const Part& part) override {
        composer_.Compose(part, band_);
        content_.Append(band_.content, 0, height_);
        height_ += band_.height;
    }

    BandComposer& composer_;
    Twips width_;
    PlacedBand& band_;
    ItemList& content_;
    Twips height_ = 0;
};

bool IsFigure(const Control& control) {
    return !std::holds_alternative<std::monostate>(control.Value()) ||
           control.Design().align == Align::kRight;
}

Item ItemOf(const Control& control, ItemKind kind, const Box& box) {
    return {.kind = kind,
            .align = control.Design().align,
            .figure = kind == ItemKind::kText && IsFigure(control),
            .style = control.Style(),
            .box = box};
}

bool IsOverBreak(const Control& control) {
    return control.Design().carry == Carry::kTakes || control.Design().carry == Carry::kWithIt;
}

void ComposeCarried(const Section& section, PlacedBand& band) {
    for (const auto& control : section.Controls()) {
        const Item item = ItemOf(control, ItemKind::kText, control.Place());
        switch (control.Design().carry) {
            case Carry::kNone:
                break;
            case Carry::kGives:
                band.carried.Add(item, control.Text());
                break;
            case Carry::kTakes:
                band.over_break.Add(item, {});
                break;
            case Carry::kWithIt:
                if (!control.Text().empty()) band.over_break.Add(item, control.Text());
                break;
        }
    }
}

/// What prints at most one item, in the control's own box.
void PlaceSimple(const Control& control, Twips shift, ItemList& content) {
    Box box = control.Place();
    box.top += shift;
    switch (control.Design().kind) {
        case ControlKind::kLabel:
        case ControlKind::kText:
            if (!control.Text().empty())
                content.Add(ItemOf(control, ItemKind::kText, box), control.Text());
            break;
        case ControlKind::kPageNumber:
            if (!control.Text().empty())
                content.Add(ItemOf(control, ItemKind::kPageNumber, box), control.Text());
            break;
        case ControlKind::kLine:
            content.Add(ItemOf(control, ItemKind::kRule, box), {});
            break;
        case ControlKind::kBlock:
        case ControlKind::kSubReport:
            break;
    }
}

}  // namespace

void BandComposer::Compose(const Part& part, PlacedBand& band) {
    const Section& section = *part.section;
    band.kind = section.Kind();
    band.height = section.Height();
    band.content.Clear();
    band.carried.Clear();
    band.over_break.Clear();
    if (part.carries) ComposeCarried(section, band);
    if (!part.grows) {
        for (const auto& control : section.Controls())
            if (control.Visible() && !IsOverBreak(control)) PlaceSimple(control, 0, band.content);
        return;
    }
    Measure(section);
    band.height = std::max(Twips{0}, growth_.Settle(extents_, band.height));
    for (std::size_t i = 0; i < section.Controls().size(); ++i)
        if (section.Controls()[i].Visible() && !IsOverBreak(section.Controls()[i]))
            Place(section.Controls()[i], i, band.content);
}

void BandComposer::Measure(const Section& section) {
    const auto& controls = section.Controls();
    lines_.resize(std::max(lines_.size(), controls.size()));
    sub_reports_.resize(std::max(sub_reports_.size(), controls.size()));
    extents_.clear();
    for (std::size_t i = 0; i < controls.size(); ++i) extents_.push_back(Measured(controls[i], i));
}

Extent BandComposer::Measured(const Control& control, std::size_t index) {
    const Box& box = control.Place();
    Extent extent{
        .box = box, .height = box.height, .follows_column = control.Design().follows_column};
    if (control.Design().kind == ControlKind::kSubReport) {
        extent.gives_way = true;
        extent.height = RunSubReport(control, sub_reports_[index]);
    } else if (control.Design().can_grow && control.Visible() && !control.Text().empty()) {
        extent.height = std::max(box.height, BreakLines(control, lines_[index]));
    }
    return extent;
}

/// Gives the height that the lines need. The first one stands where it would if the text could not
/// grow, so that it lines up with its neighbours.
Twips BandComposer::BreakLines(const Control& control, Lines& lines) {
    const Box& box = control.Place();
    lines.texts.clear();
    measurer_.BreakLines(control.Text(), control.Style(), box.width, lines.texts);
    lines.pitch = measurer_.LineHeight(control.Style());
    lines.height = box.height < 2 * lines.pitch ? box.height : lines.pitch;
    return lines.height + static_cast<Twips>(lines.texts.size() - 1) * lines.pitch;
}

Twips BandComposer::RunSubReport(const Control& control, ItemList& content) {
    content.Clear();
    // Held, as a handler may take it away while it runs.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const auto report = control.SubReport();
    if (!control.Visible() || report == nullptr) return 0;
    if (inner_ == nullptr) inner_ = std::make_unique<BandComposer>(measurer_, control_, depth_ + 1);
    BandStack stack(*inner_, control.Place().width, inner_band_, content);
    RunReport(*report, stack, control_, depth_ + 1);
    return stack.Height();
}

void BandComposer::Place(const Control& control, std::size_t index, ItemList& content) {
    const Twips shift = extents_[index].shift;
    const Box& box = control.Place();
    if (control.Design().kind == ControlKind::kSubReport)
        return content.Append(sub_reports_[index], box.left, box.top + shift);
    if (!control.Design().can_grow || control.Text().empty())
        return PlaceSimple(control, shift, content);
    const Lines& lines = lines_[index];
    Box line{box.left, box.top + shift, box.width, lines.height};
    for (const auto text : lines.texts) {
        if (!text.empty()) content.Add(ItemOf(control, ItemKind::kText, line), text);
        line.top += lines.pitch;
    }
}

}  // namespace varnel::engine
