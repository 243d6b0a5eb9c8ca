#include "engine/groups.h"

namespace varnel::engine {

void Groups::Resolve(const ReportData& data, const Layout& layout) {
    depth_ = 0;
    levels_.clear();
    for (const auto& section : layout.sections) {
        if (section.kind != SectionKind::kGroupHeader) continue;
        if (!section.group_field.empty())
            levels_.push_back({depth_, FindField(data, layout.name, section.group_field)});
        ++depth_;
    }
}

int Groups::FirstChange(const Record& before, const Record& after) const {
    for (const auto& level : levels_) {
        const Row& row = before.Holding(level.field);
        if (!row.SameValue(after.Holding(level.field), level.field.column)) return level.depth;
    }
    return depth_;
}

}  // namespace varnel::engine
