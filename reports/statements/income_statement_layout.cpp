#include "reports/statements/income_statement_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/item_adjustment_note.h"
#include "reports/statements/statement_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr auto kDescription = ColumnPlace::Left(0, 6'800, Stretch::kWiden);
constexpr auto kPeriod = ColumnPlace::Amount(6'900, 1'900);
constexpr auto kCumulative = ColumnPlace::Amount(8'900, 1'900);

// Of the header of columns.
constexpr auto kProjectsCaption = ColumnPlace::Left(0, 1'000);
constexpr auto kProjects = ColumnPlace::Left(1'060, 9'740, Stretch::kWiden);
constexpr Twips kProjectsTop = 40;
constexpr Twips kRatesTop = kProjectsTop + kLineHeight;
constexpr Twips kCaptionsTop = kRatesTop + kLineHeight + 60;
constexpr Twips kDatesTop = kCaptionsTop + kLineHeight;
constexpr Twips kCaptionRuleTop = kDatesTop + kLineHeight + 20;

constexpr Twips kFooterHeight = 1'035;

ControlLayout Text(ControlLayout label, std::string_view text) {
    label.kind = ControlKind::kLabel;
    label.text = text;
    return label;
}

SectionLayout ColumnHeader() {
    auto rule = CaptionRule();
    rule.box.top = kCaptionRuleTop;
    return {
        .name = "GroupHeader1",
        .kind = SectionKind::kGroupHeader,
        .height = kCaptionRuleTop + kThin,
        .repeat = true,
        .controls = {
            Text(ColumnText("lblProjects", kProjectsCaption, kProjectsTop, kBodyBold), "Projets:"),
            Growing(Text(ColumnText("fldProjects", kProjects, kProjectsTop, kBody), {})),
            Growing(Text(ColumnText(kExchangeRatesNote, kWholeWidth, kRatesTop, kQuiet), {})),
            ColumnLabel("lblPeriod", kPeriod, kCaptionsTop, kCaption, 2681),
            ColumnLabel("lblCumul", kCumulative, kCaptionsTop, kCaption, 2682),
            Text(ColumnText("lblDatePeriod", kPeriod, kDatesTop, kQuiet), {}),
            Text(ColumnText("lblDateCul", kCumulative, kDatesTop, kQuiet), {}), rule}};
}

SectionLayout SectionTotal() {
    return {.name = "gfAcctType",
            .kind = SectionKind::kGroupFooter,
            .height = kFooterHeight,
            .controls = {TotalRule("linTypeTotal", kPeriod, kSectionRuleTop),
                         TotalRule("linTypeTotalCul", kCumulative, kSectionRuleTop),
                         SectionCaption("lblTypeCap", kDescription, kSectionTotalTop),
                         ColumnText("txtTypeTotal", kPeriod, kSectionTotalTop, kBodyBold),
                         ColumnText("txtTypeTotalCul", kCumulative, kSectionTotalTop, kBodyBold),
                         TotalRule("linResult", kPeriod, kResultRuleTop),
                         TotalRule("linResultCul", kCumulative, kResultRuleTop),
                         SectionCaption("lblGTot", kDescription, kResultTop),
                         ColumnText("txtTotalPassCap", kPeriod, kResultTop, kBodyBold),
                         ColumnText("txtTotalPassCapCul", kCumulative, kResultTop, kBodyBold),
                         TotalRule("linFinal", kPeriod, kResultEndTop),
                         TotalRule("linFinalCul", kCumulative, kResultEndTop),
                         TotalRule("linFinal2", kPeriod, kResultEndTop + kRuleGap),
                         TotalRule("linFinalCul2", kCumulative, kResultEndTop + kRuleGap)}};
}

}  // namespace

const Layout& IncomeStatementLayout() {
    static const Layout layout{
        .name = "dsrIncomeStatement",
        .sections = {
            {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
            PageHeader(PageHeaderControls({})),
            ColumnHeader(),
            StatementSection(kDescription),
            StatementRows(
                kDescription,
                {ExportedText("txtAcctNumber", "account", "GLAcctId"), RowRule("linTotal", kPeriod),
                 RowRule("linTotalCul", kCumulative), RowAmount("txtTotal", kPeriod, "period"),
                 RowAmount("txtTotalCul", kCumulative, "cumulative")}),
            SectionTotal(),
            {.name = "GroupFooter1", .kind = SectionKind::kGroupFooter},
            PageFooter({ItemAdjustmentNoteControl()}),
            {.name = "ReportFooter", .kind = SectionKind::kReportFooter}}};
    return layout;
}

}  // namespace varnel::reports
