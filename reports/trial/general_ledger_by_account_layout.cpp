#include "reports/trial/general_ledger_by_account_layout.h"

#include "framework/item_adjustment_note.h"
#include "framework/layout_parts.h"
#include "framework/standard_header.h"
#include "reports/trial/account_lines_layout.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr std::int16_t kCarriedForward = 30053;
constexpr std::int16_t kBroughtForward = 30054;

constexpr auto kDate = ColumnPlace::Left(0, 900);
constexpr auto kSeqNo = ColumnPlace::Left(950, 610);
constexpr auto kSource = ColumnPlace::Left(1'600, 560);
constexpr auto kReference = ColumnPlace::Left(2'170, 1'020);
constexpr auto kDescription = ColumnPlace::Left(3'220, 1'820, Stretch::kWiden);
constexpr auto kRemarks = ColumnPlace::Left(3'220, 7'580, Stretch::kWiden);
constexpr auto kForeign = ColumnPlace::Amount(5'100, 1'320);
constexpr auto kDebit = ColumnPlace::Amount(6'480, 1'260);
constexpr auto kCredit = ColumnPlace::Amount(7'800, 1'260);
constexpr auto kBalance = ColumnPlace::Amount(9'120, 1'340);
constexpr ColumnPlace kType{10'500, 300, Align::kLeft, Stretch::kShift};
constexpr auto kAccount = ColumnPlace::Left(0, 1'480);
constexpr auto kAccountName = ColumnPlace::Left(1'540, 4'880, Stretch::kWiden);
/// What stands before an amount: it ends where the balance, or the debit, begins.
constexpr ColumnPlace kBeforeBalance{6'480, 2'580, Align::kRight, Stretch::kShift};
constexpr ColumnPlace kBeforeDebit{2'120, 4'300, Align::kRight, Stretch::kWiden};
constexpr AmountColumns kAmounts{kDebit, kCredit, kBalance, kType, kBeforeDebit};
constexpr Twips kHeaderTop = 70;

ControlLayout OverBreak(ControlLayout control, Carry carry) {
    control.carry = carry;
    return control;
}

/// The balance that goes over a page break, with what it is called.
std::vector<ControlLayout> Carried(std::int16_t caption, std::string_view name,
                                   std::string_view amount, std::string_view type, Twips top) {
    return {OverBreak(ColumnLabel(name, kBeforeBalance, top, kQuiet, caption), Carry::kWithIt),
            OverBreak(ColumnText(amount, kBalance, top, kBody), Carry::kTakes),
            OverBreak(ColumnText(type, kType, top, kQuiet), Carry::kTakes)};
}

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblDateCap", kDate, 1912),
            ColumnCaption("lblSeqNoCap", kSeqNo, 2664),
            ColumnCaption("lblSourceCap", kSource, 2648),
            ColumnCaption("lblReferenceCap", kReference, 30051),
            ColumnCaption("lblDescrCap", kDescription, 1789),
            Hidden(ColumnCaption("lblForeignCap", kForeign, 5846)),
            ColumnCaption("lblDebitCap", kDebit, 2656),
            ColumnCaption("lblCreditCap", kCredit, 2657),
            ColumnCaption("lblBalanceCap", kBalance, 2637),
            CaptionRule()};
}

SectionLayout AccountHeader() {
    const auto number = ColumnText("txtGLAcctId", kAccount, kHeaderTop, kBodyBold, "account");
    const auto name =
        ColumnText("txtDescr", kAccountName, kHeaderTop, kBodyBold, "account_description");
    auto controls = Carried(kBroughtForward, "lblBroughtForward", "txtBroughtForward",
                            "lblBroughtForwardType", kHeaderTop);
    controls.insert(controls.begin(), {Bound(number, "GLAcctId"), Growing(Bound(name, "Descr"))});
    return {.name = "ghAccount",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight,
            .group_field = "InGLAcctId",
            .repeat = true,
            .controls = std::move(controls)};
}

/// Not repeated: a page that the account runs on to begins with what is brought forward.
SectionLayout Forward() {
    return {.name = "ghForward",
            .kind = SectionKind::kGroupHeader,
            .height = kDetailHeight,
            .group_field = "InGLAcctId",
            .controls = {ColumnLabel("lblBalanceForward", kBeforeBalance, 0, kQuiet, 3011),
                         ColumnText("txtBalanceForward", kBalance, 0, kBody, "forward"),
                         ColumnText("lblBalanceForwardType", kType, 0, kQuiet, "forward_type")}};
}

SectionLayout Lines() {
    const auto reference = ColumnText("txtDetRef", kReference, 0, kBody, "reference");
    const auto description = ColumnText("txtDetDesc", kDescription, 0, kBody, "description");
    const auto remarks = ColumnText("txtRemarks", kRemarks, kLineHeight, kRemark, "remarks");
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight + kLineHeight,
            .controls = {
                ColumnText("txtDetDate", kDate, 0, kBody, "date"),
                ColumnText("txtSeqNo", kSeqNo, 0, kBody, "entry"),
                Bound(ColumnText("txtSource", kSource, 0, kBody, "source"), "Source"),
                Growing(Bound(reference, "DetRef")), Growing(Bound(description, "DetDesc")),
                Hidden(ColumnText("txtForeign", kForeign, 0, kQuiet, "foreign")),
                ExportedText("txtCurrencyCode", "currency"),
                ColumnText("txtDebit", kDebit, 0, kBody, "debit"),
                ColumnText("txtCredit", kCredit, 0, kBody, "credit"),
                OverBreak(ColumnText("txtBalance", kBalance, 0, kBody, "balance"), Carry::kGives),
                OverBreak(ColumnText("lblBalanceType", kType, 0, kQuiet, "balance_type"),
                          Carry::kGives),
                Growing(Bound(remarks, "Remarks"))}};
}

SectionLayout Footer() {
    auto note = ItemAdjustmentNoteControl();
    note.box.top += kCarriedHeight;
    auto controls =
        Carried(kCarriedForward, "lblCarriedForward", "txtCarriedForward", "lblCarriedType", 20);
    controls.push_back(note);
    auto footer = PageFooter(std::move(controls));
    footer.height += kCarriedHeight;
    return footer;
}

SectionLayout Totals() {
    constexpr Twips kTop = 100;
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kTop + 360,
            .controls = GrandTotals(kAmounts, kTop)};
}

}  // namespace

const Layout& GeneralLedgerByAccountLayout() {
    static const Layout layout{
        .name = "dsrGeneralLedgerByAccount",
        .sections = {PageHeader(PageHeaderControls(Captions())),
                     AccountHeader(),
                     Forward(),
                     Lines(),
                     {.name = "gfForward", .kind = SectionKind::kGroupFooter},
                     AccountSubtotal(kAmounts),
                     Footer(),
                     Totals()}};
    return layout;
}

}  // namespace varnel::reports
