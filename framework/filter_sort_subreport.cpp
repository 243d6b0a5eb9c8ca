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

ControlLayout TextLine(std::string_view name) {
    return {.name = name,
            .box = {kTextLeft, 0, kLayoutWidth - kTextLeft, kLineHeight},
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
                      .controls = {Caption("lblSegments", 30041), TextLine("txtSegments"),
                                   Caption("lblFilter", 30042), TextLine("txtFilter"),
                                   Caption("lblSortedBy", 30043), TextLine("txtSortedBy")}}}};
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

Twips dsrFilterAndSortByInfoSubreport::ShowLine(const Line& line, const std::string& text,
                                                Twips top) {
    for (Control* control : {&line.caption, &line.text}) {
        control->SetVisible(!text.empty());
        control->SetTop(top);
    }
    line.text.SetText(text);
    return text.empty() ? top : top + kLineHeight;
}

void dsrFilterAndSortByInfoSubreport::Detail_Format() {
    Twips height = ShowLine(segments_, info_.segments, 0);
    height = ShowLine(criteria_, info_.criteria, height);
    height = ShowLine(ordering_, info_.ordering, height);
    Detail.SetHeight(height);
    if (height == 0) Detail.Skip();
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
