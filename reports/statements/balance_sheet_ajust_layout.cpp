#include "reports/statements/balance_sheet_ajust_layout.h"

#include "reports/statements/balance_columns.h"
#include "reports/statements/statement_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;
using namespace comparative_balance_columns;

constexpr Twips kClosingRuleTop = kSectionTotalTop + 340;
constexpr Twips kClosingTop = kClosingRuleTop + 30;
constexpr Twips kClosingEndTop = kClosingTop + 240;
constexpr Twips kFooterHeight = kClosingEndTop + kRuleGap + 60;

SectionLayout Caption() {
    auto section = StatementSection(kDescription);
    section.controls.front().text = "TRANSACTIONS NON AFFECTÉES AUX SEGMENTS";
    return {.name = "ReportHeader",
            .kind = SectionKind::kReportHeader,
            .height = section.height,
            .controls = std::move(section.controls)};
}

SectionLayout Adjustment() {
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {ColumnText("txtDescr", kDescription, 0, kBody),
                         ColumnText("txtTotal", kAmount, 0, kBody),
                         ColumnText("txtTotalAdj", kAmount, 0, kBody),
                         ColumnText("txtTotalAdjComp", kComparison, 0, kBody),
                         ColumnText("txtTotalAdjDiff", kVariance, 0, kBody),
                         ColumnText("txtTotalAdjDiffPerc", kPercent, 0, kBody)}};
}

SectionLayout Totals() {
    const Twips total = kSectionTotalTop;
    return {
        .name = "ReportFooter",
        .kind = SectionKind::kReportFooter,
        .height = kFooterHeight,
        .controls = {TotalRule("linTypeTotal", kAmount, kSectionRuleTop),
                     TotalRule("linTypeTotal2", kComparison, kSectionRuleTop),
                     TotalRule("linTotalDiff", kVariance, kSectionRuleTop),
                     SectionCaption("lblTypeCap", kDescription, total),
                     ColumnText("txtTypeTotal", kAmount, total, kBodyBold),
                     ColumnText("txtTypeTotal2", kComparison, total, kBodyBold),
                     ColumnText("txtTotalDiffDollar", kVariance, total, kBodyBold),
                     ColumnText("lblTotalDiffPercent", kPercent, total, kBodyBold),
                     TotalRule("linPassCap", kAmount, kClosingRuleTop),
                     TotalRule("linPassCapPassed", kComparison, kClosingRuleTop),
                     TotalRule("linPassDiff", kVariance, kClosingRuleTop),
                     SectionCaption("lblGTot", kDescription, kClosingTop),
                     ColumnText("txtTotalPassCap", kAmount, kClosingTop, kBodyBold),
                     ColumnText("txtTotalPassCapPassed", kComparison, kClosingTop, kBodyBold),
                     ColumnText("txtTotalPassDiffDollar", kVariance, kClosingTop, kBodyBold),
                     ColumnText("lblTotalPassDiffPercent", kPercent, kClosingTop, kBodyBold),
                     Closing(TotalRule("linFinal", kAmount, kClosingEndTop)),
                     Closing(TotalRule("linFinalPassed", kComparison, kClosingEndTop)),
                     Closing(TotalRule("linFinalDiff", kVariance, kClosingEndTop)),
                     Closing(TotalRule("linFinal2", kAmount, kClosingEndTop + kRuleGap)),
                     Closing(TotalRule("linFinalPassed2", kComparison, kClosingEndTop + kRuleGap)),
                     Closing(TotalRule("linFinalDiff2", kVariance, kClosingEndTop + kRuleGap)),
                     {.name = "dsrGeneralJournalAdjust",
                      .kind = ControlKind::kSubReport,
                      .box = {0, kFooterHeight, kLayoutWidth, 0},
                      .stretch = Stretch::kWiden}}};
}

}  // namespace

const Layout& BalanceSheetAjustLayout() {
    static const Layout layout{.name = "dsrBalanceSheetAjust",
                               .sections = {Caption(), Adjustment(), Totals()}};
    return layout;
}

}  // namespace varnel::reports
