#include "reports/trial/adjusting_lines.h"

#include <algorithm>

namespace varnel::reports {

namespace {

bool IsOneOf(std::initializer_list<std::string_view> names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

void ShowAdjustingLines(Section& report_footer, std::initializer_list<std::string_view> lines,
                        bool visible) {
    Twips first_line = report_footer.Design().height;
    Twips first_other = report_footer.Design().height;
    for (const auto& control : report_footer.Controls()) {
        const bool is_line = IsOneOf(lines, control.Design().name);
        Twips& first = is_line ? first_line : first_other;
        first = std::min(first, control.Design().box.top);
    }
    const Twips up = visible ? 0 : std::max(0, first_other - first_line);
    for (auto& control : report_footer.Controls()) {
        if (IsOneOf(lines, control.Design().name))
            control.SetVisible(visible);
        else
            control.SetTop(control.Design().box.top - up);
    }
    report_footer.SetHeight(report_footer.Design().height - up);
}

}  // namespace varnel::reports
