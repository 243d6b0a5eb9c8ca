#include "reports/statements/income_statement_layout.h"

#include "framework/item_adjustment_note.h"
#include "reports/statements/income_statement_parts.h"
#include "reports/statements/statement_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr auto kDescription = ColumnPlace::Left(0, 6'800, Stretch::kWiden);
constexpr auto kPeriod = ColumnPlace::Amount(6'900, 1'900);
constexpr auto kCumulative = ColumnPlace::Amount(8'900, 1'900);

SectionLayout SectionTotal() {
    return {
        .name = "gfAcctType",
        .kind = SectionKind::kGroupFooter,
        .height = kResultHeight,
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
                     Closing(TotalRule("linFinal", kPeriod, kResultEndTop)),
                     Closing(TotalRule("linFinalCul", kCumulative, kResultEndTop)),
                     Closing(TotalRule("linFinal2", kPeriod, kResultEndTop + kRuleGap)),
                     Closing(TotalRule("linFinalCul2", kCumulative, kResultEndTop + kRuleGap))}};
}

}  // namespace

const Layout& IncomeStatementLayout() {
    static const Layout layout{
        .name = "dsrIncomeStatement",
        .sections = {
            {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
            PageHeader(PageHeaderControls({})),
            IncomeStatementHeader(
                {ColumnLabel("lblPeriod", kPeriod, kCaptionsTop, kCaption, 2681),
                 ColumnLabel("lblCumul", kCumulative, kCaptionsTop, kCaption, 2682),
                 DateCaption("lblDatePeriod", kPeriod, 1),
                 DateCaption("lblDateCul", kCumulative, 1)},
                1),
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
