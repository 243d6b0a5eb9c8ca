#include "reports/statements/comparative_income_statement_layout.h"

#include "framework/item_adjustment_note.h"
#include "reports/statements/income_statement_parts.h"
#include "reports/statements/statement_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr auto kDescription = ColumnPlace::Left(0, 3'660, Stretch::kWiden);
constexpr auto kPeriod = ColumnPlace::Amount(3'720, 1'480);
constexpr auto kCumulative = ColumnPlace::Amount(5'260, 1'480);
constexpr auto kComparison = ColumnPlace::Amount(6'800, 1'480);
constexpr auto kVariance = ColumnPlace::Amount(8'340, 1'480);
constexpr auto kPercent = ColumnPlace::Amount(9'880, 920);

std::vector<ControlLayout> Captions() {
    return {ColumnLabel("lblPeriod", kPeriod, kCaptionsTop, kCaption, 2681),
            ColumnLabel("lblCumul", kCumulative, kCaptionsTop, kCaption, 2682),
            ColumnLabel("lblComp", kComparison, kCaptionsTop, kCaption, 2685),
            ColumnLabel("lblVariance", kVariance, kCaptionsTop, kCaption, 2684),
            ColumnLabel("lblVariancePercent", kPercent, kCaptionsTop, kCaption, 2683),
            DateCaption("lblDatePeriod", kPeriod, 2),
            DateCaption("lblDateCul", kCumulative, 2),
            DateCaption("lblDatePeriodComp", kComparison, 2)};
}

SectionLayout SectionTotal() {
    const Twips total = kSectionTotalTop, result = kResultTop;
    const Twips end = kResultEndTop, end2 = kResultEndTop + kRuleGap;
    return {.name = "gfAcctType",
            .kind = SectionKind::kGroupFooter,
            .height = kResultHeight,
            .controls = {TotalRule("linTypeTotal", kPeriod, kSectionRuleTop),
                         TotalRule("linTypeTotalCul", kCumulative, kSectionRuleTop),
                         TotalRule("linTypeTotalComp", kComparison, kSectionRuleTop),
                         TotalRule("linTypeTotalDoll", kVariance, kSectionRuleTop),
                         SectionCaption("lblTypeCap", kDescription, total),
                         ColumnText("txtTypeTotal", kPeriod, total, kBodyBold),
                         ColumnText("txtTypeTotalCul", kCumulative, total, kBodyBold),
                         ColumnText("txtTypeTotalComp", kComparison, total, kBodyBold),
                         ColumnText("txtTypeTotalDoll", kVariance, total, kBodyBold),
                         ColumnText("lblTypeTotalDiff", kPercent, total, kBodyBold),
                         TotalRule("linResult", kPeriod, kResultRuleTop),
                         TotalRule("linResultCul", kCumulative, kResultRuleTop),
                         TotalRule("linResultComp", kComparison, kResultRuleTop),
                         TotalRule("linResultDoll", kVariance, kResultRuleTop),
                         SectionCaption("lblGTot", kDescription, result),
                         ColumnText("txtTotalPassCap", kPeriod, result, kBodyBold),
                         ColumnText("txtTotalPassCapCul", kCumulative, result, kBodyBold),
                         ColumnText("txtTotalPassCapComp", kComparison, result, kBodyBold),
                         ColumnText("txtTotalPassCapDoll", kVariance, result, kBodyBold),
                         ColumnText("lblTotalPassCapDiff", kPercent, result, kBodyBold),
                         Closing(TotalRule("linFinal", kPeriod, end)),
                         Closing(TotalRule("linFinalCul", kCumulative, end)),
                         Closing(TotalRule("linFinalComp", kComparison, end)),
                         Closing(TotalRule("linFinalDoll", kVariance, end)),
                         Closing(TotalRule("linFinal2", kPeriod, end2)),
                         Closing(TotalRule("linFinalCul2", kCumulative, end2)),
                         Closing(TotalRule("linFinalComp2", kComparison, end2)),
                         Closing(TotalRule("linFinalDoll2", kVariance, end2))}};
}

SectionLayout Rows() {
    return StatementRows(
        kDescription,
        {ExportedText("txtAcctNumber", "account", "GLAcctId"), RowRule("linTotal", kPeriod),
         RowRule("linTotalCul", kCumulative), RowRule("linTotalComp", kComparison),
         RowRule("linTotalDoll", kVariance), RowAmount("txtTotal", kPeriod, "period"),
         RowAmount("txtTotalCul", kCumulative, "cumulative"),
         RowAmount("txtTotalComp", kComparison, "comparison"),
         RowAmount("txtTotalDoll", kVariance, "variance"),
         RowAmount("lblTotalDiff", kPercent, "variance_percent")});
}

}  // namespace

const Layout& ComparativeIncomeStatementLayout() {
    static const Layout layout{
        .name = "dsrComparativeIncomeStatement",
        .sections = {{.name = "ReportHeader", .kind = SectionKind::kReportHeader},
                     PageHeader(PageHeaderControls({})),
                     IncomeStatementHeader(Captions(), 2),
                     StatementSection(kDescription),
                     Rows(),
                     SectionTotal(),
                     {.name = "GroupFooter1", .kind = SectionKind::kGroupFooter},
                     PageFooter({ItemAdjustmentNoteControl()}),
                     {.name = "ReportFooter", .kind = SectionKind::kReportFooter}}};
    return layout;
}

}  // namespace varnel::reports
