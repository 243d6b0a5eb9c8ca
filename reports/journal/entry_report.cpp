#include "reports/journal/entry_report.h"

#include <limits>

#include "framework/cell_values.h"
#include "framework/filter_sort_subreport.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kEntries = 5860;

constexpr std::string_view kSelect =
    "SELECT GLDet.InGLDetId, GLDet.ExCurrencyId, GLDet.SeqNo, GLDet.DetAmnt, GLDet.ForeignAmnt, "
    "GLDet.DetDate, GLDet.DetDesc, "
    "GLDet.DetRef, GLDet.Source, GLDet.ExSrcKeyVal, GLDet.Remarks, GLDet.ExProjId, "
    "GLAcct.GLAcctId, GLAcct.Descr, ProjInfo.ProjId, "
    "WorldCurrency.InCurrencyId, WorldCurrency.CurrencyCode, "
    "WorldCurrency.CurrencyCode + ' - ' + WorldCurrency.Descr As CurrencyFullDescr "
    "FROM (((GLDet GLDet LEFT OUTER JOIN GJTrxHdr GJTrxHdr ON "
    "GLDet.ExSrcKeyVal = GJTrxHdr.InTrxId) "
    "LEFT OUTER JOIN ProjInfo ProjInfo ON "
    "GLDet.ExProjId = ProjInfo.InProjId) "
    "LEFT OUTER JOIN GLAcct GLAcct ON "
    "GLDet.ExAcctId = GLAcct.InGLAcctId) LEFT JOIN WorldCurrency ON "
    "WorldCurrency.InCurrencyId = GLDet.ExCurrencyId ";

std::string SelectedDocumentsClause(const std::vector<std::string>& keys) {
    if (keys.empty()) return {};
    std::string list;
    for (const auto& key : keys) list += (list.empty() ? "" : ",") + key;
    return " AND GLDet.ExSrcKeyVal IN (" + list + ")";
}

}  // namespace

EntryReport::EntryReport(const Layout& layout, std::int16_t title_text)
    : ReportBase(layout, {.title_text = title_text,
                          .date_display = DateDisplay::kFromTo,
                          .by_account_number = true}),
      SegmentFilter(Members()),
      FilterableReport(Members()) {
    Handle("PageHeader_Format", &EntryReport::PageHeader_Format);
    Handle("ghSeqNo_Format", &EntryReport::ghSeqNo_Format);
    Handle("Detail_Format", &EntryReport::Detail_Format);
    Handle("gfComment_Format", &EntryReport::gfComment_Format);
    Handle("gfSeqNo_Format", &EntryReport::gfSeqNo_Format);
    Handle("ReportFooter_Format", &EntryReport::ReportFooter_Format);
}

void EntryReport::LineColumns::Resolve(const Columns& columns) {
    id = columns.At("InGLDetId");
    currency_code = columns.At("CurrencyCode");
    currency_id = columns.At("ExCurrencyId");
    seq_no = columns.At("SeqNo");
    amount = columns.At("DetAmnt");
    foreign_amount = columns.At("ForeignAmnt");
    date = columns.At("DetDate");
    description = columns.At("DetDesc");
    reference = columns.At("DetRef");
    source = columns.At("Source");
    source_key = columns.At("ExSrcKeyVal");
    remarks = columns.At("Remarks");
    project_id = columns.At("ExProjId");
    account_number = columns.At("GLAcctId");
    account_description = columns.At("Descr");
    project = columns.At("ProjId");
}

// A report that could not start knows no total.
void EntryReport::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        entry_ = {};
        report_.Lose();
        entry_count_ = 0;
        foreign_used_ = false;
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        Mark(), foreign_used_ = GetCurrencyInfo().CieIsForeignCurrencyUsed();
        if (DisplayForeignCurrency()) MoveAmountColumns();
        BeginRun();
        const std::string statement = BuildStatement();
        const Variant parameters[] = {DateFrom(), DateTo()};
        auto rows = (Mark(), RunQuery(App(), statement, parameters));
        Mark(), columns_.Resolve(rows->GetColumns());
        Data().Attach(std::move(rows));
        report_ = {};
        Mark(), At(kPeriodLabel).SetText(JournalPeriodCaption(App(), DateFrom(), DateTo()));
        ShowSelection();
        const auto custom = Criteria();
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), custom, Tool());
        Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
    });
}

std::string EntryReport::BuildStatement() {
    std::string statement(kSelect);
    statement += Condition();
    FilterTool* const tool = Tool();
    if (tool != nullptr) {
        const bool with_projects = (Mark(), CurrentCompany().UsesProjects());
        Mark(), tool->SetTables(with_projects ? "GLDet, GLAcct, GJTrxHdr, ProjInfo, WorldCurrency"
                                              : "GLDet, GLAcct, GJTrxHdr, WorldCurrency");
        Mark(), statement += SelectedDocumentsClause(tool->SelectedDocuments());
    }
    if (IsSegmentFiltered()) statement += " AND " + SegmentClauseOn("GLDet.ExSegmentId");
    const CustomCriteria custom = Criteria();
    statement += custom.AndClause();
    statement += custom.OrderClause(" ORDER BY GLDet.SeqNo, ", DefaultOrder());
    return statement;
}

// Foreign amounts take the right edge; project, debit and credit move left of them.
void EntryReport::MoveAmountColumns() {
    constexpr Twips kGap = 60;
    const Twips credit_left = txtForeign.Place().left - kGap - txtCredit.Place().width;
    const Twips debit_left = credit_left - kGap - txtDebit.Place().width;
    const Twips project_left = debit_left - kGap - txtProject.Place().width;
    for (const auto* name :
         {"txtCredit", "lblCreditCap", "linCreditTotal", "txtCreditTotal", "txtCreditGrandTotal"})
        At(name).SetLeft(credit_left);
    for (const auto* name :
         {"txtDebit", "lblDebitCap", "linDebitTotal", "txtDebitTotal", "txtDebitGrandTotal"})
        At(name).SetLeft(debit_left);
    for (const auto* name : {"txtProject", "lblProjectCap"}) At(name).SetLeft(project_left);
    for (const auto* name : {"txtAccount", "lblAccountCap"})
        At(name).SetWidth(project_left - kGap - At(name).Place().left);
    At("lblForeignCap").SetVisible(foreign_used_);
}

void EntryReport::PutAmount(Control& control, Currency amount) {
    Mark(), PutAmountIn(GetCurrencyInfo(), control, amount, HomeCurrencyId(), text_);
}

void EntryReport::PutTotals(Control& debit, Control& credit, const DebitCredit& totals) {
    debit.Clear();
    credit.Clear();
    if (!totals.Known()) return;
    PutAmount(debit, totals.debit.Value());
    PutAmount(credit, totals.credit.Value());
}

void EntryReport::PageHeader_Format() { ReplacePageHeaderControls(PageHeader); }

// Whatever the host fails at, the entry is counted, its totals start at zero and no text of the
// entry before is left: what needs the host comes last.
void EntryReport::ghSeqNo_Format() {
    if (EndOfData()) return txtDescription.Clear();
    entry_ = {};
    txtDate.Clear();
    if (entry_count_ == std::numeric_limits<std::int32_t>::max())
        Raise(error_number::kOverflow, "Varnel", "There are more entries than can be counted");
    ++entry_count_;

    const Row& row = CurrentRow();
    Mark(), PutNumber(txtSeqNo, row, columns_.seq_no, text_);

    // References that a database keeps as numbers are texts here.
    text_.clear();
    row.AppendText(columns_.description, text_);
    text_ += "  #Ref: ";
    row.AppendText(columns_.reference, text_);
    txtDescription.SetText(Trimmed(text_));

    Mark(), ReadDocumentKey(row, columns_.source, columns_.source_key, text_);
    for (Control* header : {&txtSeqNo, &txtDate, &txtDescription}) header->SetTag(text_);
    ShowDate();
}

void EntryReport::ShowDate() {
    if (CurrentRow().IsNull(columns_.date)) return;
    const Date date = (Mark(), CurrentRow().Day(columns_.date));
    Mark(), PutDate(App().GetFormats(), txtDate, date, text_);
}

bool EntryReport::ShowsForeignAmount() const {
    const Row& row = CurrentRow();
    return foreign_used_ && DisplayForeignCurrency() && !row.IsNull(columns_.currency_id) &&
           row.Integer(columns_.currency_id) != HomeCurrencyId();
}

void EntryReport::ShowAccount() {
    ReadAccountCaption(CurrentRow(), columns_.account_number, columns_.account_description,
                       UseAccountNumbers(), text_);
    txtAccount.SetText(text_);
}

void EntryReport::ShowProject() {
    const Row& row = CurrentRow();
    text_.clear();
    if (!row.IsNull(columns_.project_id)) row.AppendText(columns_.project, text_);
    txtProject.SetText(text_);
}

void EntryReport::ShowForeignAmount() {
    const Row& row = CurrentRow();
    const Currency amount = (Mark(), row.Amount(columns_.foreign_amount));
    const std::int32_t currency_id = (Mark(), row.Integer(columns_.currency_id));
    Mark(), PutAmountIn(GetCurrencyInfo(), txtForeign, amount, currency_id, text_);
    txtForeign.SetVisible(true);
    txtForeignCode.SetVisible(true);
}

// A line whose amount cannot be read or added shows none, least of all that of the line before, and
// leaves no total without it.
Currency EntryReport::AddLine() try {
    const Currency amount = (Mark(), CurrentRow().Amount(columns_.amount));
    Mark(), entry_.Add(amount);
    Mark(), report_.Add(amount);
    return amount;
} catch (...) {
    txtDebit.Clear();
    txtCredit.Clear();
    entry_.Lose();
    report_.Lose();
    LineAdded(std::nullopt);
    throw;
}

// A line of zero leaves both amounts as the line before it left them. The totals are added up and
// the texts of the line before are gone before the host is asked for anything.
void EntryReport::Detail_Format() {
    if (EndOfData()) return;
    ShowAccount();
    ShowProject();
    txtForeign.SetVisible(false);
    txtForeignCode.SetVisible(false);
    const Currency amount = AddLine();
    LineAdded(amount);
    if (!amount.IsZero()) {
        txtDebit.Clear();
        txtCredit.Clear();
        PutAmount(amount > Currency() ? txtDebit : txtCredit, amount.Abs());
    }
    if (ShowsForeignAmount()) ShowForeignAmount();
}

void EntryReport::gfComment_Format() { gfComment.SetVisible(!txtRemarks.Text().empty()); }

void EntryReport::gfSeqNo_Format() { PutTotals(txtDebitTotal, txtCreditTotal, entry_); }

void EntryReport::ReportFooter_Format() {
    Mark(), txtCount.SetValue(entry_count_,
                              std::to_string(entry_count_) + " " + PlainText(App(), kEntries));
    PutTotals(txtDebitGrandTotal, txtCreditGrandTotal, report_);
}

}  // namespace varnel::reports
