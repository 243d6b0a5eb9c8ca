#include "framework/filter_sort_subreport.h"

#include "framework/standard_header.h"
#include "framework/styles.h"
#include "framework/texts.h"

namespace varnel::framework {

namespace {

constexpr Twips kLineHeight = 220;
constexpr std::int16_t kSegments = 30041;
constexpr std::int16_t kFilter = 30042;
constexpr std::int16_t kSortedBy = 30043;

ControlLayout Line(std::string_view name) {
    return {.name = name,
            .kind = ControlKind::kLabel,
            .box = {0, 0, 10'800, kLineHeight},
            .style = kQuiet,
            .can_grow = true,
            .stretch = Stretch::kWiden};
}

const Layout& SubReportLayout() {
    static const Layout layout{
        .name = "dsrFilterAndSortByInfoSubreport",
        .sections = {{.name = "Detail",
                      .kind = SectionKind::kDetail,
                      .height = 3 * kLineHeight,
                      .controls = {Line("lblSegments"), Line("lblFilter"), Line("lblSortedBy")}}}};
    return layout;
}

}  // namespace

dsrFilterAndSortByInfoSubreport::dsrFilterAndSortByInfoSubreport(
    std::shared_ptr<Application> application, Info info)
    : DesignedReport(SubReportLayout()), info_(std::move(info)) {
    SetApplication(std::move(application));
    Handle("Detail_Format", &dsrFilterAndSortByInfoSubreport::Detail_Format);
}

void dsrFilterAndSortByInfoSubreport::ActiveReport_ReportStart() { delivered_ = false; }

void dsrFilterAndSortByInfoSubreport::ActiveReport_FetchData(bool& end_of_data) {
    end_of_data = delivered_;
    delivered_ = true;
}

void dsrFilterAndSortByInfoSubreport::Detail_Format() {
    const struct {
        std::string_view control;
        std::int16_t caption;
        const std::string& text;
    } lines[] = {{"lblSegments", kSegments, info_.segments},
                 {"lblFilter", kFilter, info_.criteria},
                 {"lblSortedBy", kSortedBy, info_.ordering}};
    Twips top = 0;
    for (const auto& line : lines) {
        Control& control = At(line.control);
        control.SetVisible(!line.text.empty());
        if (line.text.empty()) continue;
        Mark(), control.SetText(PlainText(App(), line.caption) + ": " + line.text);
        control.SetTop(top);
        top += kLineHeight;
    }
    SectionAt("Detail").SetHeight(top);
    if (top == 0) SectionAt("Detail").Skip();
}

void FillFilterSubReport(Surface& surface, std::shared_ptr<Application> application,
                         const std::string& segments, const CustomCriteria& criteria,
                         FilterTool* tool) {
    dsrFilterAndSortByInfoSubreport::Info info{segments, criteria.criteria, criteria.ordering};
    if (tool != nullptr) {
        info.criteria = tool->Describe(criteria.criteria);
        info.ordering = tool->DescribeOrdering(criteria.ordering);
    }
    surface.At(kFilterSubReport)
        .SetSubReport(std::make_shared<dsrFilterAndSortByInfoSubreport>(std::move(application),
                                                                        std::move(info)));
}

}  // namespace varnel::framework
