#include "reports/statements/comparative_balance_sheet.h"

#include "framework/period_caption.h"
#include "reports/statements/comparative_balance_sheet_layout.h"
#include "reports/statements/comparison_period.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::string_view kColumns =
    "InGLAcctId, GroupType, ExCurrencyId, Inactive, AcctType, GIFIAcctId, Descr";

}  // namespace

dsrComparativeBalanceSheet::dsrComparativeBalanceSheet()
    : dsrBalanceSheet(ComparativeBalanceSheetLayout(), 30006, kColumns) {
    SetLines(
        {.row = StatementLine({.amounts = {&At("txtTotal"), &At("txtTotalComp")},
                               .rules = {&At("lblLine"), &At("lblLineComp"), &At("lblLineDoll")},
                               .variance = &At("txtTotalDoll"),
                               .percent = &At("lblTotalDiff")}),
         .section_total = StatementLine({.amounts = {&At("txtTypeTotal"), &At("txtTypeTotalComp")},
                                         .variance = &At("txtTypeTotalDoll"),
                                         .percent = &At("lblTypeTotalDiff")}),
         .adjustment = StatementLine({.amounts = {&At("txtProfitLoos"), &At("txtProfitLoosComp")},
                                      .variance = &At("txtProfitLoosDoll"),
                                      .percent = &At("lblProfitLoosDiff")}),
         .closing = StatementLine({.amounts = {&At("txtTotalPassCap"), &At("txtTotalPassCapComp")},
                                   .variance = &At("txtTotalPassCapDoll"),
                                   .percent = &At("lblTotalPassCapDiff")}),
         .first_section_rules = StatementLine(
             {.amounts = {},
              .rules = {&At("linTypeEnd"), &At("linTypeEndComp"), &At("linTypeEndDoll"),
                        &At("linTypeEnd2"), &At("linTypeEndComp2"), &At("linTypeEndDoll2")}})});
}

std::vector<std::optional<Date>> dsrComparativeBalanceSheet::ClosingDates() {
    std::vector<std::optional<Date>> dates = {DateTo(), std::nullopt};
    Guard("SetComparativeDateFromDateTo", [&] {
        dates.back() = PeriodOfLastYear(App(), {DateFrom(), DateTo()}).to;
    });
    return dates;
}

void dsrComparativeBalanceSheet::SetColumnCaptions() {
    Control& comparison = At("lblDateComp");
    comparison.Clear();
    Mark(), At("lblDate").SetText(ClosingDateCaption(App(), DateTo()));
    if (const auto& scope = Scopes().back())
        Mark(), comparison.SetText(ClosingDateCaption(App(), scope->to));
}

}  // namespace varnel::reports
