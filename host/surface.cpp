#include "host/surface.h"

#include <algorithm>

#include "host/error.h"
#include "host/member_table.h"

namespace varnel {

namespace {

template <class Set>
void PutTwips(Control& control, const Variant& value, Set set) {
    Box box = control.Place();
    set(box) = value.ToInteger32();
    control.SetPlace(box);
}

constexpr Member<Control> kControlMembers[] = {
    {"Name", [](Control& c) -> Variant { return c.Design().name; }},
    {"Text", [](Control& c) -> Variant { return c.Text(); },
     [](Control& c, const Variant& v) { c.SetText(v.ToText()); }},
    {"Caption", [](Control& c) -> Variant { return c.Text(); },
     [](Control& c, const Variant& v) { c.SetText(v.ToText()); }},
    {"Visible", [](Control& c) -> Variant { return c.Visible(); },
     [](Control& c, const Variant& v) { c.SetVisible(v.ToBool()); }},
    {"Tag", [](Control& c) -> Variant { return c.Tag(); },
     [](Control& c, const Variant& v) { c.SetTag(v.ToText()); }},
    {"Left", [](Control& c) -> Variant { return c.Place().left; },
     [](Control& c, const Variant& v) { PutTwips(c, v, [](Box& b) -> Twips& { return b.left; }); }},
    {"Top", [](Control& c) -> Variant { return c.Place().top; },
     [](Control& c, const Variant& v) { PutTwips(c, v, [](Box& b) -> Twips& { return b.top; }); }},
    {"Width", [](Control& c) -> Variant { return c.Place().width; },
     [](Control& c, const Variant& v) {
         PutTwips(c, v, [](Box& b) -> Twips& { return b.width; });
     }},
    {"Height", [](Control& c) -> Variant { return c.Place().height; },
     [](Control& c, const Variant& v) {
         PutTwips(c, v, [](Box& b) -> Twips& { return b.height; });
     }},
};

[[noreturn]] void RaiseMalformed(const Layout& layout, const std::string& what) {
    throw Error(error_number::kInvalidArgument, std::string(layout.name),
                "The layout " + std::string(layout.name) + " is not well formed: " + what);
}

bool IsGroup(SectionKind kind) {
    return kind == SectionKind::kGroupHeader || kind == SectionKind::kGroupFooter;
}

void CheckOrder(const Layout& layout) {
    auto last = SectionKind::kReportHeader;
    bool first = true;
    for (const auto& section : layout.sections) {
        const bool after_report_footer =
            last == SectionKind::kReportFooter && section.kind == SectionKind::kPageFooter;
        if (section.kind < last && !after_report_footer)
            RaiseMalformed(layout, "section " + std::string(section.name) + " is out of order");
        if (section.kind == last && !first && !IsGroup(last))
            RaiseMalformed(layout, "section " + std::string(section.name) + " is there twice");
        last = section.kind;
        first = false;
    }
}

void CheckPairs(const Layout& layout) {
    const auto count = [&](SectionKind kind) {
        return std::ranges::count(layout.sections, kind, &SectionLayout::kind);
    };
    if (count(SectionKind::kGroupHeader) != count(SectionKind::kGroupFooter))
        RaiseMalformed(layout, "group headers and footers do not pair");
    if (count(SectionKind::kDetail) != 1) RaiseMalformed(layout, "it needs one detail section");
}

// Only the first of two would ever be found.
void CheckNames(const Layout& layout) {
    std::vector<std::string_view> names;
    for (const auto& section : layout.sections)
        for (const auto& control : section.controls) {
            const auto same = [&](std::string_view name) { return SameName(name, control.name); };
            if (!control.name.empty() && std::ranges::any_of(names, same))
                RaiseMalformed(layout, "control " + std::string(control.name) + " is there twice");
            names.push_back(control.name);
        }
}

}  // namespace

Control::Control(const ControlLayout& layout) : layout_(&layout) {
    state_.text = layout.text;
    state_.visible = layout.visible;
    state_.style = layout.style;
    state_.box = layout.box;
}

Variant Control::Get(std::string_view name) {
    return GetMember<Control>(kControlMembers, *this, name);
}

void Control::Put(std::string_view name, const Variant& value) {
    PutMember<Control>(kControlMembers, *this, name, value);
}

Section::Section(const SectionLayout& layout) : layout_(&layout) {
    state_.height = layout.height;
    controls_.reserve(layout.controls.size());
    for (const auto& control : layout.controls) controls_.emplace_back(control);
}

bool Section::Format() {
    skipped_ = keeps_with_next_ = keeps_with_previous_ = false;
    if (on_format_) on_format_();
    return state_.visible && !skipped_;
}

Surface::Surface(const Layout& layout) : layout_(&layout), width_(layout.width) {
    CheckOrder(layout);
    CheckPairs(layout);
    CheckNames(layout);
    sections_.reserve(layout.sections.size());
    for (const auto& section : layout.sections) sections_.emplace_back(section);
    Save();
}

Control* Surface::Find(std::string_view name) {
    for (auto& section : sections_)
        for (auto& control : section.controls_)
            if (SameName(control.layout_->name, name)) return &control;
    return nullptr;
}

Control& Surface::At(std::string_view name) {
    if (Control* control = Find(name)) return *control;
    RaiseUnknownMember(layout_->name, name);
}

Section& Surface::SectionAt(std::string_view name) {
    for (auto& section : sections_)
        if (SameName(section.Name(), name)) return section;
    RaiseUnknownMember(layout_->name, name);
}

void Surface::Widen(Twips width) {
    const Twips extra = width - width_;
    if (extra <= 0) return;
    width_ = width;
    for (auto& section : sections_)
        for (auto& control : section.controls_) {
            if (control.layout_->stretch == Stretch::kWiden) control.state_.box.width += extra;
            if (control.layout_->stretch == Stretch::kShift) control.state_.box.left += extra;
        }
}

void Surface::Save() {
    saved_.width = width_;
    std::size_t controls = 0;
    for (const auto& section : sections_) controls += section.controls_.size();
    saved_.sections.resize(sections_.size());
    saved_.controls.resize(controls);
    auto section_state = saved_.sections.begin();
    auto control_state = saved_.controls.begin();
    for (const auto& section : sections_) {
        *section_state++ = section.state_;
        for (const auto& control : section.controls_) *control_state++ = control.state_;
    }
}

void Surface::Restore() {
    width_ = saved_.width;
    auto control_state = saved_.controls.begin();
    auto section_state = saved_.sections.begin();
    for (auto& section : sections_) {
        section.state_ = *section_state++;
        for (auto& control : section.controls_) control.state_ = *control_state++;
    }
}

}  // namespace varnel
