#include "reports/journal/general_journal.h"

#include "framework/filter_sort_subreport.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "reports/journal/general_journal_layout.h"

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
    "WorldCurrency.InCurrencyId = GLDet.ExCurrencyId "
    "WHERE GLDet.Source IN('GJ','BKT','BRC') "
    "AND GLDet.DetDate BETWEEN ? AND ? ";

std::string SelectedDocumentsClause(const std::vector<std::string>& keys) {
    if (keys.empty()) return {};
    std::string list;
    for (const auto& key : keys) list += (list.empty() ? "" : ",") + key;
    return " AND GLDet.ExSrcKeyVal IN (" + list + ")";
}

}  // namespace

dsrGeneralJournal::dsrGeneralJournal()
    : ReportBase(GeneralJournalLayout(),
                 {.title_text = 6173, .date_display = DateDisplay::kFromTo}) {
    Handle("PageHeader_Format", &dsrGeneralJournal::PageHeader_Format);
    Handle("ghSeqNo_Format", &dsrGeneralJournal::ghSeqNo_Format);
    Handle("Detail_Format", &dsrGeneralJournal::Detail_Format);
    Handle("gfComment_Format", &dsrGeneralJournal::gfComment_Format);
    Handle("gfSeqNo_Format", &dsrGeneralJournal::gfSeqNo_Format);
    Handle("ReportFooter_Format", &dsrGeneralJournal::ReportFooter_Format);
}

void dsrGeneralJournal::JournalColumns::Resolve(const Columns& columns) {
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

void dsrGeneralJournal::ActiveReport_Initialize() {
    ReportBase::ActiveReport_Initialize();
    Guard("ActiveReport_Initialize",
          [&] { Mark(), use_account_numbers_ = ReadSwitch(App(), "UseAccountNumbers"); });
}

void dsrGeneralJournal::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        Mark();
        const auto adjustments_from = InitGLtAjust(App());
        Mark();
        QueryRunner query(App());
        entry_ = {};
        report_ = {};
        entry_count_ = 0;
        foreign_used_ = IReport_UseCurrency();
        if (DisplayForeignCurrency()) MoveAmountColumns();
        Mark();
        const std::string statement = BuildStatement();
        const Variant parameters[] = {DateFrom(), DateTo()};
        Mark();
        auto rows = query.Run(statement, parameters);
        Mark(), columns_.Resolve(rows->GetColumns());
        Data().Attach(std::move(rows));
        Mark(), At(kPeriodLabel).SetText(JournalPeriodCaption(App(), DateFrom(), DateTo()));
        Mark();
        FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), Criteria(), Tool());
        Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
    });
}

std::string dsrGeneralJournal::BuildStatement() {
    std::string statement(kSelect);
    FilterTool* const tool = Tool();
    if (tool != nullptr) {
        Mark();
        tool->SetTables(CurrentCompany().UsesProjects()
                            ? "GLDet, GLAcct, GJTrxHdr, ProjInfo, WorldCurrency"
                            : "GLDet, GLAcct, GJTrxHdr, WorldCurrency");
        Mark(), statement += SelectedDocumentsClause(tool->SelectedDocuments());
    }
    if (IsSegmentFiltered()) statement += " AND " + SegmentClauseOn("GLDet.ExSegmentId");
    const CustomCriteria custom = Criteria();
    statement += custom.AndClause();
    statement += custom.OrderClause(" ORDER BY GLDet.SeqNo, ",
                                    " ORDER BY GLDet.DetDate, GLDet.SeqNo, GLDet.InGLDetId");
    return statement;
}

// Foreign amounts take the right edge; project, debit and credit move left of them.
void dsrGeneralJournal::MoveAmountColumns() {
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
    At("lblForeignCap").SetVisible(true);
}

void dsrGeneralJournal::PutAmount(Control& control, Currency amount) {
    text_.clear();
    Mark(), GetCurrencyInfo().FormatWorldCurrency(amount, HomeCurrencyId(), text_);
    control.SetValue(amount, text_);
}

void dsrGeneralJournal::PageHeader_Format() { ReplacePageHeaderControls(PageHeader); }

void dsrGeneralJournal::ghSeqNo_Format() {
    if (EndOfData()) return txtDescription.Clear();
    const Row& row = CurrentRow();
    text_.clear();
    if (row.IsNull(columns_.date)) {
        txtDate.Clear();
    } else {
        const Date date = row.Day(columns_.date);
        Mark(), App().GetFormats().AppendShortDate(date, text_);
        txtDate.SetValue(date, text_);
    }
    entry_ = {};
    if (__builtin_add_overflow(entry_count_, 1, &entry_count_))
        Raise(error_number::kOverflow, "Varnel", "There are more entries than can be counted");

    text_.clear();
    row.AppendText(columns_.seq_no, text_);
    txtSeqNo.SetValue(row.Integer(columns_.seq_no), text_);

    text_ = row.Text(columns_.description);
    text_ += "  #Ref: ";
    text_ += row.Text(columns_.reference);
    txtDescription.SetText(Trimmed(text_));

    text_ = row.Text(columns_.source);
    text_ += '|';
    row.AppendText(columns_.source_key, text_);
    for (Control* header : {&txtSeqNo, &txtDate, &txtDescription}) header->SetTag(text_);
}

bool dsrGeneralJournal::ShowsForeignAmount() const {
    const Row& row = CurrentRow();
    return foreign_used_ && DisplayForeignCurrency() && !row.IsNull(columns_.currency_id) &&
           row.Integer(columns_.currency_id) != HomeCurrencyId();
}

void dsrGeneralJournal::ShowAccount() {
    const Row& row = CurrentRow();
    text_.clear();
    if (use_account_numbers_ && !row.IsNull(columns_.account_number)) {
        row.AppendText(columns_.account_number, text_);
        text_ += " - ";
    }
    text_ += row.Text(columns_.account_description);
    txtAccount.SetText(text_);
}

void dsrGeneralJournal::ShowForeignAmount() {
    const bool shown = ShowsForeignAmount();
    txtForeign.SetVisible(shown);
    txtForeignCode.SetVisible(shown);
    if (!shown) return;
    const Row& row = CurrentRow();
    const Currency amount = row.Amount(columns_.foreign_amount);
    text_.clear();
    Mark(), GetCurrencyInfo().FormatWorldCurrency(amount, row.Integer(columns_.currency_id), text_);
    txtForeign.SetValue(amount, text_);
}

// A line of zero leaves both texts as the line before it left them.
void dsrGeneralJournal::ShowAmounts() {
    const Currency amount = CurrentRow().Amount(columns_.amount);
    if (amount > Currency()) {
        PutAmount(txtDebit, amount);
        txtCredit.Clear();
        entry_.debit += amount;
        report_.debit += amount;
    } else if (amount < Currency()) {
        txtDebit.Clear();
        PutAmount(txtCredit, -amount);
        entry_.credit -= amount;
        report_.credit -= amount;
    }
}

void dsrGeneralJournal::Detail_Format() {
    if (EndOfData()) return;
    const Row& row = CurrentRow();
    ShowAccount();
    ShowForeignAmount();
    if (row.IsNull(columns_.project_id))
        txtProject.Clear();
    else
        txtProject.SetText(row.Text(columns_.project));
    ShowAmounts();
}

void dsrGeneralJournal::gfComment_Format() { gfComment.SetVisible(!txtRemarks.Text().empty()); }

void dsrGeneralJournal::gfSeqNo_Format() {
    PutAmount(txtDebitTotal, entry_.debit);
    PutAmount(txtCreditTotal, entry_.credit);
}

void dsrGeneralJournal::ReportFooter_Format() {
    PutAmount(txtDebitGrandTotal, report_.debit);
    PutAmount(txtCreditGrandTotal, report_.credit);
    Mark(), txtCount.SetValue(entry_count_,
                              std::to_string(entry_count_) + " " + PlainText(App(), kEntries));
}

}  // namespace varnel::reports
