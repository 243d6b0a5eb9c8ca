#include "reports/trial/account_lines_layout.h"

namespace varnel::reports {

using namespace framework;

SectionLayout AccountSubtotal(const AmountColumns& columns) {
    const auto& [debit, credit, balance, type, caption] = columns;
    return {
        .name = "gfAccount",
        .kind = SectionKind::kGroupFooter,
        .height = kGroupHeight,
        .controls = {TotalRule("linDebitTotal", debit, 0), TotalRule("linCreditTotal", credit, 0),
                     TotalRule("linBalanceTotal", balance, 0),
                     ColumnLabel("lblSubTotal", caption, 25, kBodyBold, 2710),
                     ColumnText("txtDebitTotal", debit, 25, kBodyBold),
                     ColumnText("txtCreditTotal", credit, 25, kBodyBold),
                     ColumnText("txtBalanceTotal", balance, 25, kBodyBold),
                     ColumnText("lblBalanceTotalType", type, 25, kQuiet)}};
}

std::vector<ControlLayout> GrandTotals(const AmountColumns& columns, Twips top) {
    const auto& [debit, credit, balance, type, caption] = columns;
    const Twips rule = top - 40;
    return {TotalRule("linDebitGrandTotal", debit, rule, kThick),
            TotalRule("linCreditGrandTotal", credit, rule, kThick),
            TotalRule("linBalanceGrandTotal", balance, rule, kThick),
            ColumnLabel("lblGrTotal", caption, top, kBodyBold, 1641),
            ColumnText("txtDebitGrandTotal", debit, top, kBodyBold),
            ColumnText("txtCreditGrandTotal", credit, top, kBodyBold),
            ColumnText("txtBalanceGrandTotal", balance, top, kBodyBold),
            ColumnText("lblBalanceGrandTotalType", type, top, kQuiet)};
}

}  // namespace varnel::reports
