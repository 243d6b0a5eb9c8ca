#include "framework/filter_sort_subreport.h"

#include "framework/standard_header.h"
#include "framework/styles.h"
#include "framework/texts.h"

namespace varnel::framework {

namespace {

constexpr Twips kLineHeight = 220;
constexpr Twips kTextLeft = 960;

ControlLayout Caption(std::string_view name, std::int16_t text) {
    return {.name = name,
            .kind = ControlKind::kLabel,
            .box = {0, 0, kTextLeft - 60, kLineHeight},
            .style = kCaption,
            .caption = text};
}

ControlLayout Line(std::string_view name) {
    return {.name = name,
            .box = {kTextLeft, 0, 10'800 - kTextLeft, kLineHeight},
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
                      .controls = {Caption("lblSegments", 30041), Line("txtSegments"),
                                   Caption("lblFilter", 30042), Line("txtFilter"),
                                   Caption("lblSortedBy", 30043), Line("txtSortedBy")}}}};
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
        std::string_view caption, control;
        const std::string& text;
    } lines[] = {{"lblSegments", "txtSegments", info_.segments},
                 {"lblFilter", "txtFilter", info_.criteria},
                 {"lblSortedBy", "txtSortedBy", info_.ordering}};
    Twips top = 0;
    for (const auto& line : lines) {
        for (const auto name : {line.caption, line.control}) {
            At(name).SetVisible(!line.text.empty());
            At(name).SetTop(top);
        }
        At(line.control).SetText(line.text);
        if (!line.text.empty()) top += kLineHeight;
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
