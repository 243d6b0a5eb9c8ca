#include "reports/trial/general_ledger_by_account.h"

#include "framework/cell_values.h"
#include "framework/filter_sort_subreport.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/styles.h"
#include "reports/trial/account_list.h"
#include "reports/trial/general_ledger_by_account_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::string_view kHead =
    "SELECT GLDet.InGLDetId, GLDet.DetDate, GLDet.SeqNo, GLDet.Source, GLDet.ExSrcKeyVal, "
    "GLDet.DetRef, GLDet.DetDesc, GLDet.Remarks, GLDet.DetAmnt, GLDet.ForeignAmnt, "
    "GLDet.ExCurrencyId AS GLDetExCurrencyId, GLAcct.AcctType, GLAcct.InGLAcctId, "
    "GLAcct.GLAcctId, GLAcct.ExCurrencyId, GLAcct.Descr, GLAcct.GroupType "
    "FROM GLAcct LEFT JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId "
    "AND GLDet.DetDate BETWEEN ? AND ?";
constexpr std::string_view kAccountOrder = " ORDER BY GLAcct.GLAcctId, ";
constexpr std::string_view kOrder =
    " ORDER BY GLAcct.GLAcctId, GLDet.DetDate, GLDet.SeqNo, GLDet.InGLDetId";

/// Rows of the chart that are accounts; the others are headings, subtotals and texts.
bool IsAccount(std::int32_t group_type) {
    return group_type == 2 || group_type == 4 || group_type == 6;
}

}  // namespace

dsrGeneralLedgerByAccount::dsrGeneralLedgerByAccount()
    : AccountReport(
          GeneralLedgerByAccountLayout(),
          {.title_text = 30014, .date_display = DateDisplay::kFromTo, .by_fiscal_year = true}) {
    Handle("PageHeader_Format", &dsrGeneralLedgerByAccount::PageHeader_Format);
    Handle("ghAccount_Format", &dsrGeneralLedgerByAccount::ghAccount_Format);
    Handle("ghForward_Format", &dsrGeneralLedgerByAccount::ghForward_Format);
    Handle("Detail_Format", &dsrGeneralLedgerByAccount::Detail_Format);
    Handle("gfAccount_Format", &dsrGeneralLedgerByAccount::gfAccount_Format);
    Handle("ReportFooter_Format", &dsrGeneralLedgerByAccount::ReportFooter_Format);
}

void dsrGeneralLedgerByAccount::IReportConfig_ShowConfigurationScreen() {
    Guard("IReportConfig_ShowConfigurationScreen",
          [&] { Mark(), options_ = AskLedgerOptions(App(), options_); });
}

// A report that could not start knows no total.
void dsrGeneralLedgerByAccount::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        sums_.Lose();
        foreign_used_ = false;
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        Mark(), foreign_used_ = GetCurrencyInfo().CieIsForeignCurrencyUsed();
        const bool foreign = DisplayForeignCurrency() && foreign_used_;
        lines_.PlaceDescription(foreign, foreign);
        const std::string statement = BuildStatement();
        StartAmounts(ForwardPeriod());
        const Variant parameters[] = {DateFrom(), DateTo()};
        auto rows = (Mark(), RunQuery(App(), statement, parameters));
        Mark(), lines_.Resolve(rows->GetColumns());
        Mark(), group_type_ = rows->GetColumns().At("GroupType");
        Mark(), Amounts().Resolve(rows->GetColumns());
        Data().Attach(std::move(rows));
        sums_.Begin();
        Mark(), At(kPeriodLabel).SetText(JournalPeriodCaption(App(), DateFrom(), DateTo()));
        const auto custom = Criteria();
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), custom, Tool());
        ShowFooter(adjustments_from);
    });
}

// The page footer is there without the note too, for what is carried forward.
void dsrGeneralLedgerByAccount::ShowFooter(std::optional<Date> adjustments_from) {
    Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
    Section& footer = SectionAt("PageFooter");
    if (!footer.Visible()) footer.SetHeight(kCarriedHeight);
    footer.SetVisible(true);
}

std::string dsrGeneralLedgerByAccount::BuildStatement() {
    FilterTool* const tool = Tool();
    if (tool != nullptr) Mark(), tool->SetTables("GLAcct, GLDet");
    const CustomCriteria custom = Criteria();
    std::string statement(kHead);
    if (IsSegmentFiltered()) statement += " AND " + SegmentClauseOn("GLDet.ExSegmentId");
    const std::string accounts = (Mark(), AccountListOf(custom.criteria, tool, ObjectName()));
    if (!accounts.empty()) statement += " WHERE GLAcct.InGLAcctId IN (" + accounts + ")";
    return statement + custom.OrderClause(kAccountOrder, kOrder);
}

void dsrGeneralLedgerByAccount::PageHeader_Format() { ReplacePageHeaderControls(PageHeader); }

void dsrGeneralLedgerByAccount::BringForward() try {
    const TrialAccount account = (Mark(), Amounts().Read(CurrentRow()));
    current_.key = Amounts().Key(account);
    const Currency forward = (Mark(), Amounts().BalanceOf(account));
    current_.forward = KnownSum(forward);
    sums_.BringForward(forward);
} catch (...) {
    current_.forward.Lose();
    sums_.LoseForward();
    throw;
}

bool dsrGeneralLedgerByAccount::IsLeftOut() {
    if (IsLine() || !current_.forward.IsZero()) return false;
    return !options_.include_zero_balances ||
           (Mark(), !IsAccount(CurrentRow().Integer(group_type_)));
}

void dsrGeneralLedgerByAccount::ghAccount_Format() {
    if (EndOfData()) return;
    current_ = {};
    sums_.BeginAccount();
    for (Control* control : {&txtGLAcctId, &txtDescr}) control->SetTag({});
    BringForward();
    current_.left_out = IsLeftOut();
    if (current_.left_out) return ghAccount.Skip();
    for (Control* control : {&txtGLAcctId, &txtDescr}) control->SetTag(current_.key);
}

void dsrGeneralLedgerByAccount::ghForward_Format() {
    if (EndOfData()) return;
    if (current_.left_out) return ghForward.Skip();
    forward_.Clear();
    forward_.amount.SetTag(current_.key);
    Mark(), forward_.Show(App().GetFormats(), current_.forward, text_);
}

// A line that cannot be read may be of any amount.
Currency dsrGeneralLedgerByAccount::AddLine() try {
    const Currency amount = (Mark(), CurrentRow().Amount(lines_.At().amount));
    sums_.Add(amount);
    return amount;
} catch (...) {
    sums_.Lose();
    throw;
}

void dsrGeneralLedgerByAccount::ShowKey() {
    const std::string& key = (Mark(), lines_.DocumentKey(CurrentRow()));
    lines_.SetTag(key);
    txtDetRef.SetTag(key);
}

void dsrGeneralLedgerByAccount::ShowRemarks() {
    const bool shown = options_.show_comments && !txtRemarks.Text().empty();
    txtRemarks.SetVisible(shown);
    Detail.SetHeight(shown ? Detail.Design().height : kDetailHeight);
}

void dsrGeneralLedgerByAccount::ShowForeignAmount() {
    const std::int32_t currency_id = (Mark(), CurrentRow().Integer(lines_.At().currency_id));
    if (!DisplayForeignCurrency() || !foreign_used_ || currency_id == 0 ||
        currency_id == Amounts().HomeCurrencyId())
        return;
    const std::string& code = (Mark(), GetCurrencyInfo().GetCurrencies().Item(currency_id).code);
    Mark(), lines_.ShowForeignAmount(App().GetFormats(), CurrentRow(), code);
}

// The line is added up before the host is asked for anything.
void dsrGeneralLedgerByAccount::Detail_Format() {
    if (EndOfData()) return;
    if (!IsLine()) return Detail.Skip();
    lines_.Clear();
    ShowRemarks();
    ShowKey();
    const Currency amount = AddLine();
    Mark(), lines_.ShowAmount(App().GetFormats(), amount, sums_);
    ShowForeignAmount();
    Mark(), lines_.ShowNumberAndDate(App().GetFormats(), CurrentRow());
}

void dsrGeneralLedgerByAccount::gfAccount_Format() {
    lines_.ClearSubtotals();
    if (current_.left_out) return gfAccount.Skip();
    Mark(), lines_.ShowSubtotals(App().GetFormats(), sums_);
}

void dsrGeneralLedgerByAccount::ReportFooter_Format() {
    Mark(), lines_.ShowTotals(App().GetFormats(), sums_);
}

}  // namespace varnel::reports
