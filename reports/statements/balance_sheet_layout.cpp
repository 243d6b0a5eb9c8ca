#include "reports/statements/balance_sheet_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/item_adjustment_note.h"
#include "reports/statements/balance_columns.h"
#include "reports/statements/statement_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

using namespace balance_columns;

constexpr Twips kSectionTotalHeight = 420;
constexpr Twips kSectionEndTop = kSectionTotalTop + 235;
constexpr Twips kTotalTop = 150;
constexpr Twips kTotalEndTop = kTotalTop + 240;
constexpr Twips kTotalHeight = kTotalEndTop + kRuleGap + 60;

SectionLayout Adjustment() {
    return {.name = "GroupFooter1",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {ColumnLabel("lblProfitLoos", kDescription, 20, kBody, 30039),
                         ColumnText("txtProfitLoos", kAmount, 20, kBody)}};
}

SectionLayout SectionTotal() {
    return {.name = "gfAcctType",
            .kind = SectionKind::kGroupFooter,
            .height = kSectionTotalHeight,
            .controls = {
                TotalRule("linTypeTotal", kAmount, kSectionRuleTop),
                SectionCaption("lblTypeCap", kDescription, kSectionTotalTop),
                ColumnText("txtTypeTotal", kAmount, kSectionTotalTop, kBodyBold),
                Hidden(Closing(TotalRule("linTypeEnd", kAmount, kSectionEndTop))),
                Hidden(Closing(TotalRule("linTypeEnd2", kAmount, kSectionEndTop + kRuleGap)))}};
}

SectionLayout Total() {
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kTotalHeight,
            .controls = {TotalRule("linTotalPassCap", kAmount, kTotalTop - 30),
                         SectionCaption("lblGTot", kDescription, kTotalTop),
                         ColumnText("txtTotalPassCap", kAmount, kTotalTop, kBodyBold),
                         Closing(TotalRule("linFinal", kAmount, kTotalEndTop)),
                         Closing(TotalRule("linFinal2", kAmount, kTotalEndTop + kRuleGap)),
                         AdjustedSheet(kTotalHeight)}};
}

}  // namespace

const Layout& BalanceSheetLayout() {
    static const Layout layout{
        .name = "dsrBalanceSheet",
        .sections = {
            {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
            PageHeader(PageHeaderControlsWithRates({})),
            StatementSection(kDescription),
            {.name = "GroupHeader1", .kind = SectionKind::kGroupHeader, .group_field = "AcctType"},
            StatementRows(kDescription,
                          {ExportedText("txtAcctNumber", "account", "GLAcctId"),
                           RowRule("lblLine", kAmount), RowAmount("txtTotal", kAmount, "amount")}),
            Adjustment(),
            SectionTotal(),
            PageFooter({ItemAdjustmentNoteControl()}),
            Total()}};
    return layout;
}

}  // namespace varnel::reports
