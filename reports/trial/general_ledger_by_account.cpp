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

constexpr Twips kGap = 60;

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

void dsrGeneralLedgerByAccount::LineColumns::Resolve(const Columns& columns) {
    id = columns.At("InGLDetId");
    number = columns.At("SeqNo");
    date = columns.At("DetDate");
    amount = columns.At("DetAmnt");
    foreign = columns.At("ForeignAmnt");
    currency_id = columns.At("GLDetExCurrencyId");
    source = columns.At("Source");
    source_key = columns.At("ExSrcKeyVal");
    reference = columns.At("DetRef");
    description = columns.At("DetDesc");
    remarks = columns.At("Remarks");
    group_type = columns.At("GroupType");
}

void dsrGeneralLedgerByAccount::IReportConfig_ShowConfigurationScreen() {
    Guard("IReportConfig_ShowConfigurationScreen",
          [&] { Mark(), options_ = AskLedgerOptions(App(), options_); });
}

// A report that could not start knows no total.
void dsrGeneralLedgerByAccount::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        totals_.Lose();
        balance_total_.Lose();
        foreign_used_ = false;
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        Mark(), foreign_used_ = GetCurrencyInfo().CieIsForeignCurrencyUsed();
        PlaceColumns();
        const std::string statement = BuildStatement();
        StartAmounts(ForwardPeriod());
        const Variant parameters[] = {DateFrom(), DateTo()};
        auto rows = (Mark(), RunQuery(App(), statement, parameters));
        Mark(), columns_.Resolve(rows->GetColumns());
        Mark(), Amounts().Resolve(rows->GetColumns());
        Data().Attach(std::move(rows));
        totals_ = {};
        balance_total_ = {};
        Mark(), At(kPeriodLabel).SetText(JournalPeriodCaption(App(), DateFrom(), DateTo()));
        const auto custom = Criteria();
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), custom, Tool());
        ShowFooter(adjustments_from);
    });
}

// The page footer is there without the note too, for what is carried forward.
void dsrGeneralLedgerByAccount::ShowFooter(std::optional<Date> adjustments_from) {
    Section& footer = SectionAt("PageFooter");
    footer.SetVisible(true);
    footer.SetHeight(kCarriedHeight);
    Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
    if (footer.Visible()) footer.SetHeight(footer.Design().height);
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

// Without foreign amounts the description takes their room.
void dsrGeneralLedgerByAccount::PlaceColumns() {
    const bool foreign = DisplayForeignCurrency() && foreign_used_;
    At("lblForeignCap").SetVisible(foreign);
    const Twips right = (foreign ? txtForeign : txtDebit).Place().left - kGap;
    for (Control* control : {&txtDetDesc, &At("lblDescrCap")})
        control->SetWidth(right - control->Place().left);
}

void dsrGeneralLedgerByAccount::PageHeader_Format() { ReplacePageHeaderControls(PageHeader); }

void dsrGeneralLedgerByAccount::BringForward() try {
    const TrialAccount account = (Mark(), Amounts().Read(CurrentRow()));
    current_.key = Amounts().Key(account);
    const Currency forward = (Mark(), Amounts().BalanceOf(account));
    current_.forward = current_.balance = KnownSum(forward);
    balance_total_.Add(forward);
} catch (...) {
    current_.forward.Lose();
    current_.balance.Lose();
    balance_total_.Lose();
    throw;
}

bool dsrGeneralLedgerByAccount::IsLeftOut() {
    if (IsLine() || !current_.forward.IsZero()) return false;
    return !options_.include_zero_balances ||
           (Mark(), !IsAccount(CurrentRow().Integer(columns_.group_type)));
}

void dsrGeneralLedgerByAccount::ghAccount_Format() {
    if (EndOfData()) return;
    current_ = {};
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
    Mark(), ShowBalance(forward_, current_.forward);
}

// A line that cannot be read may be of any amount.
Currency dsrGeneralLedgerByAccount::AddLine() try {
    const Currency amount = (Mark(), CurrentRow().Amount(columns_.amount));
    current_.totals.Add(amount);
    totals_.Add(amount);
    current_.balance.Add(amount);
    balance_total_.Add(amount);
    return amount;
} catch (...) {
    current_.totals.Lose();
    totals_.Lose();
    current_.balance.Lose();
    balance_total_.Lose();
    throw;
}

void dsrGeneralLedgerByAccount::ShowTexts() {
    const Row& row = CurrentRow();
    const auto show = [&](Control& control, Column column) {
        text_.clear();
        row.AppendText(column, text_);
        control.SetText(text_);
    };
    show(txtSource, columns_.source);
    show(txtDetRef, columns_.reference);
    show(txtDetDesc, columns_.description);
    show(txtRemarks, columns_.remarks);
    ShowRemarks();
    Mark(), ReadDocumentKey(row, columns_.source, columns_.source_key, text_);
    for (Control* control : {&txtDetDate, &txtSeqNo, &txtSource, &txtDetRef, &txtDetDesc, &txtDebit,
                             &txtCredit, &running_.amount})
        control->SetTag(text_);
}

void dsrGeneralLedgerByAccount::ShowRemarks() {
    const bool shown = options_.show_comments && !txtRemarks.Text().empty();
    txtRemarks.SetVisible(shown);
    Detail.SetHeight(shown ? Detail.Design().height : kDetailHeight);
}

void dsrGeneralLedgerByAccount::ShowForeignAmount() {
    const std::int32_t currency_id = (Mark(), CurrentRow().Integer(columns_.currency_id));
    if (!DisplayForeignCurrency() || !foreign_used_ || currency_id == 0 ||
        currency_id == Amounts().HomeCurrencyId())
        return;
    const Currency foreign = (Mark(), CurrentRow().Amount(columns_.foreign));
    const std::string& code = (Mark(), GetCurrencyInfo().GetCurrencies().Item(currency_id).code);
    text_.clear();
    Mark(), App().GetFormats().AppendAmount(foreign, text_);
    text_ += ' ';
    text_ += code;
    txtForeign.SetValue(foreign, text_);
    txtForeign.SetVisible(true);
    txtCurrencyCode.SetText(code);
}

// The line is added up before the host is asked for anything.
void dsrGeneralLedgerByAccount::Detail_Format() {
    if (EndOfData()) return;
    if (!IsLine()) return Detail.Skip();
    for (Control* control : {&txtDetDate, &txtSeqNo, &txtDebit, &txtCredit, &txtCurrencyCode})
        control->Clear();
    running_.Clear();
    txtForeign.SetVisible(false);
    ShowTexts();
    const Currency amount = AddLine();
    Mark(), ShowBalance(running_, current_.balance);
    Mark(), PutOnItsSide(App().GetFormats(), txtDebit, txtCredit, amount, text_);
    ShowForeignAmount();
    Mark(), PutNumber(txtSeqNo, CurrentRow(), columns_.number, text_);
    const Date date = (Mark(), CurrentRow().Day(columns_.date));
    Mark(), PutDate(App().GetFormats(), txtDetDate, date, text_);
}

void dsrGeneralLedgerByAccount::gfAccount_Format() {
    for (Control* control : {&txtDebitTotal, &txtCreditTotal}) control->Clear();
    account_balance_.Clear();
    if (current_.left_out) return gfAccount.Skip();
    auto& formats = (Mark(), App().GetFormats());
    Mark(), PutSum(formats, txtDebitTotal, current_.totals.debit, text_);
    Mark(), PutSum(formats, txtCreditTotal, current_.totals.credit, text_);
    Mark(), ShowBalance(account_balance_, current_.balance);
}

void dsrGeneralLedgerByAccount::ReportFooter_Format() {
    auto& formats = (Mark(), App().GetFormats());
    Mark(), PutSum(formats, txtDebitGrandTotal, totals_.debit, text_);
    Mark(), PutSum(formats, txtCreditGrandTotal, totals_.credit, text_);
    Mark(), ShowBalance(grand_balance_, balance_total_);
}

}  // namespace varnel::reports
