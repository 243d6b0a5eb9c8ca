#include "reports/trial/trial_balance_detail_layout.h"

#include <utility>

#include "framework/exchange_rates_note.h"
#include "framework/item_adjustment_note.h"
#include "framework/layout_parts.h"
#include "reports/trial/account_lines_layout.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr auto kSeqNo = ColumnPlace::Left(0, 620);
constexpr auto kSource = ColumnPlace::Left(650, 550);
constexpr auto kDate = ColumnPlace::Left(1'220, 980);
constexpr auto kDescription = ColumnPlace::Left(2'260, 2'360, Stretch::kWiden);
constexpr auto kForeign = ColumnPlace::Amount(4'680, 1'580);
constexpr auto kDebit = ColumnPlace::Amount(6'300, 1'320);
constexpr auto kCredit = ColumnPlace::Amount(7'660, 1'320);
constexpr auto kBalance = ColumnPlace::Amount(9'020, 1'440);
constexpr ColumnPlace kType{10'500, 300, Align::kLeft, Stretch::kShift};
/// Of the account header and of the adjusting line.
constexpr auto kAccount = ColumnPlace::Left(0, 1'180);
constexpr auto kAccountName = ColumnPlace::Left(1'220, 5'020, Stretch::kWiden);
/// What stands before an amount: it ends where the balance begins.
constexpr ColumnPlace kBeforeBalance{6'300, 2'660, Align::kRight, Stretch::kShift};
constexpr ColumnPlace kBeforeDebit{2'240, 4'000, Align::kRight, Stretch::kWiden};
constexpr AmountColumns kAmounts{kDebit, kCredit, kBalance, kType, kBeforeDebit};

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblSeqNoCap", kSeqNo, 2664),
            ColumnCaption("lblSourceCap", kSource, 2648),
            ColumnCaption("lblDateCap", kDate, 1912),
            ColumnCaption("lblDescrCap", kDescription, 1789),
            Hidden(ColumnCaption("lblCurrencyCap", kForeign, 5846)),
            ColumnCaption("lblDebitCap", kDebit, 2656),
            ColumnCaption("lblCreditCap", kCredit, 2657),
            ColumnCaption("lblBalanceCap", kBalance, 2637),
            CaptionRule()};
}

SectionLayout AccountHeader() {
    const auto number = ColumnText("txtGLAcctId", kAccount, 70, kBodyBold, "account");
    const auto name = ColumnText("txtDescr", kAccountName, 70, kBodyBold, "account_description");
    return {.name = "ghAccount",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight + kLineHeight,
            .group_field = "InGLAcctId",
            .repeat = true,
            .controls = {Bound(number, "GLAcctId"), Growing(Bound(name, "Descr")),
                         ColumnLabel("lblBalanceForward_", kBeforeBalance, 70, kQuiet, 3011),
                         ColumnText("txtBalanceForward", kBalance, 70, kBody, "forward"),
                         ColumnText("lblBalanceForwardType", kType, 70, kQuiet, "forward_type"),
                         ColumnLabel("lblGPUnrealized", kBeforeBalance, 290, kQuiet, 3805),
                         ColumnText("txtGPUnrealized", kBalance, 290, kBody, "unrealized"),
                         ColumnText("lblGPUnrealizedType", kType, 290, kQuiet, "unrealized_type")}};
}

SectionLayout Lines() {
    const auto description = ColumnText("txtDetDesc", kDescription, 0, kBody, "description");
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {ColumnText("txtSeqNo", kSeqNo, 0, kBody, "entry"),
                         Bound(ColumnText("txtSource", kSource, 0, kBody, "source"), "Source"),
                         ColumnText("txtDetDate", kDate, 0, kBody, "date"),
                         Growing(Bound(description, "DetDesc")),
                         Hidden(ColumnText("txtCurrency", kForeign, 0, kQuiet, "foreign")),
                         ExportedText("txtCurrencyCode", "currency"),
                         ColumnText("txtDebit", kDebit, 0, kBody, "debit"),
                         ColumnText("txtCredit", kCredit, 0, kBody, "credit"),
                         ColumnText("txtBalance", kBalance, 0, kBody, "balance"),
                         ColumnText("lblBalanceType", kType, 0, kQuiet, "balance_type")}};
}

// The adjusting line reads like an account: header, line, subtotal. The grand totals follow.
SectionLayout Totals() {
    constexpr Twips kHeaderTop = 100;
    constexpr Twips kLineTop = 360;
    constexpr Twips kSubTotalTop = 620;
    constexpr Twips kGrandTotalTop = 1'000;
    auto controls = GrandTotals(kAmounts, kGrandTotalTop);
    controls.insert(controls.begin(),
                    {ColumnText("txtDescrAdj", kAccountName, kHeaderTop, kBodyBold),
                     ColumnText("txtDetDescAdj", kDescription, kLineTop, kRemark),
                     ColumnText("txtDebitAdj", kDebit, kLineTop, kBody),
                     ColumnText("txtCreditAdj", kCredit, kLineTop, kBody),
                     ColumnText("txtBalanceAdj", kBalance, kLineTop, kBody),
                     ColumnText("lblBalanceTypeAdj", kType, kLineTop, kQuiet),
                     TotalRule("linDebitTotalAdj", kDebit, kSubTotalTop - 25),
                     TotalRule("linCreditTotalAdj", kCredit, kSubTotalTop - 25),
                     TotalRule("linBalanceTotalAdj", kBalance, kSubTotalTop - 25),
                     ColumnLabel("lblSubTotalAdj", kBeforeDebit, kSubTotalTop, kBodyBold, 2710),
                     ColumnText("txtDebitTotalAdj", kDebit, kSubTotalTop, kBodyBold),
                     ColumnText("txtCreditTotalAdj", kCredit, kSubTotalTop, kBodyBold),
                     ColumnText("txtBalanceTotalAdj", kBalance, kSubTotalTop, kBodyBold),
                     ColumnText("lblBalanceTotalTypeAdj", kType, kSubTotalTop, kQuiet)});
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kGrandTotalTop + 360,
            .controls = std::move(controls)};
}

}  // namespace

const Layout& TrialBalanceDetailLayout() {
    static const Layout layout{.name = "dsrTrialBalanceDetail",
                               .sections = {PageHeader(PageHeaderControlsWithRates(Captions())),
                                            AccountHeader(), Lines(), AccountSubtotal(kAmounts),
                                            PageFooter({ItemAdjustmentNoteControl()}), Totals()}};
    return layout;
}

}  // namespace varnel::reports
