#include "reports/statements/comparative_balance_sheet_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/item_adjustment_note.h"
#include "reports/statements/balance_columns.h"
#include "reports/statements/statement_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;
using namespace comparative_balance_columns;

constexpr std::int16_t kAsAt = 1776;
constexpr Twips kAdjustmentTop = 20;
constexpr Twips kSectionTotalHeight = 420;
constexpr Twips kTotalTop = 150;
constexpr Twips kTotalHeight = kTotalTop + 240 + kRuleGap + 60;

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblDate", kAmount, kAsAt),
            ColumnCaption("lblDateComp", kComparison, kAsAt),
            ColumnCaption("lblVariance", kVariance, 2684),
            ColumnCaption("lblVariancePercent", kPercent, 2683), CaptionRule()};
}

SectionLayout Rows() {
    return StatementRows(
        kDescription, {RowRule("lblLine", kAmount), RowRule("lblLineComp", kComparison),
                       RowRule("lblLineDoll", kVariance), RowAmount("txtTotal", kAmount, "amount"),
                       RowAmount("txtTotalComp", kComparison, "comparison"),
                       RowAmount("txtTotalDoll", kVariance, "variance"),
                       RowAmount("lblTotalDiff", kPercent, "variance_percent")});
}

SectionLayout Adjustment() {
    return {.name = "GroupFooter1",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {ColumnLabel("lblProfitLoos", kDescription, kAdjustmentTop, kBody, 30039),
                         ColumnText("txtProfitLoos", kAmount, kAdjustmentTop, kBody),
                         ColumnText("txtProfitLoosComp", kComparison, kAdjustmentTop, kBody),
                         ColumnText("txtProfitLoosDoll", kVariance, kAdjustmentTop, kBody),
                         ColumnText("lblProfitLoosDiff", kPercent, kAdjustmentTop, kBody)}};
}

SectionLayout SectionTotal() {
    const Twips total = kSectionTotalTop, end = total + 235, end2 = end + kRuleGap;
    return {.name = "gfAcctType",
            .kind = SectionKind::kGroupFooter,
            .height = kSectionTotalHeight,
            .controls = {TotalRule("linTypeTotal", kAmount, kSectionRuleTop),
                         TotalRule("linTypeTotalComp", kComparison, kSectionRuleTop),
                         TotalRule("linTypeTotalDoll", kVariance, kSectionRuleTop),
                         SectionCaption("lblTypeCap", kDescription, total),
                         ColumnText("txtTypeTotal", kAmount, total, kBodyBold),
                         ColumnText("txtTypeTotalComp", kComparison, total, kBodyBold),
                         ColumnText("txtTypeTotalDoll", kVariance, total, kBodyBold),
                         ColumnText("lblTypeTotalDiff", kPercent, total, kBodyBold),
                         Hidden(Closing(TotalRule("linTypeEnd", kAmount, end))),
                         Hidden(Closing(TotalRule("linTypeEndComp", kComparison, end))),
                         Hidden(Closing(TotalRule("linTypeEndDoll", kVariance, end))),
                         Hidden(Closing(TotalRule("linTypeEnd2", kAmount, end2))),
                         Hidden(Closing(TotalRule("linTypeEndComp2", kComparison, end2))),
                         Hidden(Closing(TotalRule("linTypeEndDoll2", kVariance, end2)))}};
}

SectionLayout Total() {
    const Twips end = kTotalTop + 240, end2 = end + kRuleGap;
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kTotalHeight,
            .controls = {TotalRule("linTotalPassCap", kAmount, kTotalTop - 30),
                         TotalRule("linTotalPassCapComp", kComparison, kTotalTop - 30),
                         TotalRule("linTotalPassCapDoll", kVariance, kTotalTop - 30),
                         SectionCaption("lblGTot", kDescription, kTotalTop),
                         ColumnText("txtTotalPassCap", kAmount, kTotalTop, kBodyBold),
                         ColumnText("txtTotalPassCapComp", kComparison, kTotalTop, kBodyBold),
                         ColumnText("txtTotalPassCapDoll", kVariance, kTotalTop, kBodyBold),
                         ColumnText("lblTotalPassCapDiff", kPercent, kTotalTop, kBodyBold),
                         Closing(TotalRule("linFinal", kAmount, end)),
                         Closing(TotalRule("linFinalComp", kComparison, end)),
                         Closing(TotalRule("linFinalDoll", kVariance, end)),
                         Closing(TotalRule("linFinal2", kAmount, end2)),
                         Closing(TotalRule("linFinalComp2", kComparison, end2)),
                         Closing(TotalRule("linFinalDoll2", kVariance, end2)),
                         AdjustedSheet(kTotalHeight)}};
}

}  // namespace

const Layout& ComparativeBalanceSheetLayout() {
    static const Layout layout{
        .name = "dsrComparativeBalanceSheet",
        .sections = {
            {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
            PageHeader(PageHeaderControlsWithRates(Captions())),
            StatementSection(kDescription),
            {.name = "GroupHeader1", .kind = SectionKind::kGroupHeader, .group_field = "AcctType"},
            Rows(),
            Adjustment(),
            SectionTotal(),
            PageFooter({ItemAdjustmentNoteControl()}),
            Total()}};
    return layout;
}

}  // namespace varnel::reports
