#include "reports/trial/trial_balance_summary_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/item_adjustment_note.h"
#include "framework/layout_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr auto kCode = ColumnPlace::Left(0, 1'200);
constexpr auto kDescription = ColumnPlace::Left(1'260, 4'500, Stretch::kWiden);
constexpr auto kForeign = ColumnPlace::Amount(5'820, 1'880);
constexpr auto kDebit = ColumnPlace::Amount(7'760, 1'490);
constexpr auto kCredit = ColumnPlace::Amount(9'310, 1'490);
/// Off the rule under the captions.
constexpr Twips kRowTop = 20;
// Of the report footer: the adjusting line, then the totals.
constexpr Twips kAdjustmentTop = 80;
constexpr Twips kTotalRuleTop = 360;
constexpr Twips kTotalTop = 400;

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblCodeCap", kCode, 1741),
            ColumnCaption("lblDescrCap", kDescription, 1789),
            Hidden(ColumnCaption("lblCurrency", kForeign, 5846)),
            ColumnCaption("lblDebitCap", kDebit, 2656),
            ColumnCaption("lblCreditCap", kCredit, 2657),
            CaptionRule()};
}

SectionLayout Accounts() {
    const auto number = ColumnText("txtAcctId", kCode, kRowTop, kBody, "account");
    const auto description = ColumnText("txtDescr", kDescription, kRowTop, kBody, "description");
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {Bound(number, "GLAcctId"), Growing(Bound(description, "Descr")),
                         Hidden(ColumnText("txtCurrency", kForeign, kRowTop, kQuiet, "foreign")),
                         Hidden(ExportedText("txtCurrencyCode", "currency", "CurrencyCode")),
                         ColumnText("txtDebit", kDebit, kRowTop, kBody, "debit"),
                         ColumnText("txtCredit", kCredit, kRowTop, kBody, "credit")}};
}

SectionLayout Totals() {
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kTotalTop + kLineHeight,
            .controls = {ColumnText("txtDescrAdj", kDescription, kAdjustmentTop, kRemark),
                         ColumnText("txtDebitAdj", kDebit, kAdjustmentTop, kBody),
                         ColumnText("txtCreditAdj", kCredit, kAdjustmentTop, kBody),
                         TotalRule("linDebitGrandTotal", kDebit, kTotalRuleTop, kThick),
                         TotalRule("linCreditGrandTotal", kCredit, kTotalRuleTop, kThick),
                         ColumnLabel("lblGrTotal", kDescription, kTotalTop, kBodyBold, 1641),
                         ColumnText("txtDebitGrandTotal", kDebit, kTotalTop, kBodyBold),
                         ColumnText("txtCreditGrandTotal", kCredit, kTotalTop, kBodyBold)}};
}

}  // namespace

const Layout& TrialBalanceSummaryLayout() {
    static const Layout layout{
        .name = "dsrTrialBalanceSummary",
        .sections = {PageHeader(PageHeaderControlsWithRates(Captions())), Accounts(),
                     PageFooter({ItemAdjustmentNoteControl()}), Totals()}};
    return layout;
}

}  // namespace varnel::reports
