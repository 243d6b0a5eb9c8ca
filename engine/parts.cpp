#include "engine/parts.h"

#include <algorithm>

namespace varnel::engine {

namespace {

Part MakePart(Section& section) {
    Part part{.section = &section, .bindings = {}};
    for (const auto& control : section.Controls()) {
        const auto& design = control.Design();
        if (design.kind == ControlKind::kSubReport) part.has_sub_reports = true;
        if (design.can_grow) part.grows = true;
        if (design.carry != Carry::kNone) part.carries = true;
    }
    part.grows = part.grows || part.has_sub_reports;
    return part;
}

}  // namespace

Parts::Parts(Surface& surface) : layout_(&surface.Design()) {
    parts_.reserve(surface.Sections().size());
    for (auto& section : surface.Sections()) {
        Part* part = &parts_.emplace_back(MakePart(section));
        if (section.Kind() == SectionKind::kGroupHeader) headers_.push_back(part);
        if (section.Kind() == SectionKind::kGroupFooter) footers_.push_back(part);
        if (section.Kind() == SectionKind::kDetail) detail_ = part;
    }
    std::reverse(footers_.begin(), footers_.end());
    for (std::size_t i = 0; i < headers_.size(); ++i)
        headers_[i]->level = footers_[i]->level = static_cast<int>(i);
}

void Parts::Bind(const ReportData& data) {
    for (auto& part : parts_) {
        part.bindings.clear();
        for (auto& control : part.section->Controls()) {
            const auto name = control.Design().data_field;
            if (!name.empty())
                part.bindings.push_back({&control, FindField(data, layout_->name, name)});
        }
    }
}

Part* Parts::Single(SectionKind kind) {
    for (auto& part : parts_)
        if (part.section->Kind() == kind) return &part;
    return nullptr;
}

}  // namespace varnel::engine
