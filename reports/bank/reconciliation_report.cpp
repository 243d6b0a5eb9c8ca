#include "reports/bank/reconciliation_report.h"

#include "framework/cell_values.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "reports/bank/bank_concil_config.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kStatementDate = 30024;
constexpr std::int16_t kAccount = 30025;
constexpr std::int16_t kDeposits = 3045;
constexpr std::int16_t kWithdrawals = 3046;

/// Captions of the groups 1 to 4.
constexpr std::int16_t kGroupTexts[] = {3044, 3043, 3046, 3045};

using Subject = ReconciliationReport::Subject;
using Figures = ReconciliationFigures;

template <auto member>
Variant GetSubjectValue(ReconciliationReport& report) {
    return report.GetSubject().*member;
}
template <Figures::Figure Figures::*figure>
Variant GetFigure(ReconciliationReport& report) {
    const auto& known = report.GetFigures().*figure;
    return known ? Variant(*known) : Variant::Null{};
}
template <Figures::Figure Figures::*figure>
void PutFigure(ReconciliationReport& report, const Variant& value) {
    report.GetFigures().*figure = value.ToCurrency();
}

constexpr Member<ReconciliationReport> kMembers[] = {
    {"ExConcilAcctId", GetSubjectValue<&Subject::account_id>,
     [](ReconciliationReport& r, const Variant& v) {
         r.GetSubject().account_id = v.ToInteger32();
     }},
    {"ConcilAcctId", GetSubjectValue<&Subject::account_number>,
     [](ReconciliationReport& r, const Variant& v) { r.GetSubject().account_number = v.ToText(); }},
    {"ConcDate", GetSubjectValue<&Subject::statement_date>,
     [](ReconciliationReport& r, const Variant& v) { r.GetSubject().statement_date = v.ToDate(); }},
    {"EndBalAmnt", GetFigure<&Figures::ending_balance>, PutFigure<&Figures::ending_balance>},
    {"DepAmntCirc", GetFigure<&Figures::outstanding_deposits>,
     PutFigure<&Figures::outstanding_deposits>},
    {"ChqAmntCirc", GetFigure<&Figures::outstanding_withdrawals>,
     PutFigure<&Figures::outstanding_withdrawals>},
    {"GLBalAmnt", GetFigure<&Figures::ledger_balance>, PutFigure<&Figures::ledger_balance>},
    {"DifAmnt", GetFigure<&Figures::difference>, PutFigure<&Figures::difference>},
};

}  // namespace

ReconciliationReport::ReconciliationReport(const Layout& layout, std::int16_t title_text)
    : ReportBase(layout, {.title_text = title_text, .date_display = DateDisplay::kNone}),
      FilterableReport(Members()) {
    Members().Add<ReconciliationReport>(*this, kMembers);
    Handle("Detail_Format", &ReconciliationReport::Detail_Format);
    Handle("PageHeader_Format", &ReconciliationReport::PageHeader_Format);
    Handle("ghTransactionType_Format", &ReconciliationReport::ghTransactionType_Format);
    Handle("gfTransactionType_Format", &ReconciliationReport::gfTransactionType_Format);
    Handle("ReportFooter_Format", &ReconciliationReport::ReportFooter_Format);
}

void ReconciliationReport::IReportConfig_ShowConfigurationScreen() {
    Guard("IReportConfig_ShowConfigurationScreen", [&] {
        Mark(), include_reconciled_ = AskIncludeReconciledAmount(App(), include_reconciled_);
    });
}

void ReconciliationReport::ItemColumns::Resolve(const Columns& columns) {
    date = columns.At("DetDate");
    reference = columns.At("DetRef");
    description = columns.At("DetDesc");
    amount = columns.At("DetAmnt");
    foreign = columns.At("ForeignAmnt");
    source = columns.At("Source");
    source_key = columns.At("ExSrcKeyVal");
    type = columns.At("TransactionType");
}

bool ReconciliationReport::IsForeign(std::int32_t currency_id) {
    return currency_id != (Mark(), GetCurrencyInfo().CieHomeCurrencyId());
}

// The code comes last: without it the run is not spoiled.
void ReconciliationReport::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        currency_id_.reset();
        currency_code_.clear();
        group_total_ = {};
        auto& accounts = (Mark(), CurrentCompany().Accounts());
        const std::int32_t currency_id = (Mark(), accounts.CurrencyOf(subject_.account_id));
        foreign_ = IsForeign(currency_id);
        auto rows = (Mark(), OpenItems());
        Mark(), columns_.Resolve(rows ? rows->GetColumns() : Data().FieldNames());
        Data().Attach(std::move(rows));
        currency_id_ = currency_id;
        currency_code_ = CurrencyCode(currency_id);
    });
}

std::string ReconciliationReport::CurrencyCode(std::int32_t currency_id) {
    CurrencyInfo& info = (Mark(), GetCurrencyInfo());
    if (!(Mark(), info.CieIsForeignCurrencyUsed())) return {};
    return (Mark(), info.GetCurrencies().Item(currency_id).code);
}

// Without a currency the amount stays blank: why was told when the run began.
void ReconciliationReport::PutInAccountCurrency(Control& control, Currency amount) {
    if (currency_id_) PutAmountIn(GetCurrencyInfo(), control, amount, *currency_id_, text_);
}

void ReconciliationReport::PageHeader_Format() {
    Mark(), At("lblConcilAcct").SetText(PlainText(App(), kAccount));
    At("txtConcilAcctId").SetText(subject_.account_number);
    At("txtCurrency").SetText(currency_code_);
    Mark(), At("lblConcDate").SetText(PlainText(App(), kStatementDate));
    Mark(), PutDate(App().GetFormats(), At("txtConcDate"), subject_.statement_date, text_);
    ReplacePageHeaderControls(SectionAt("PageHeader"));
}

// Another value leaves the caption as it is.
void ReconciliationReport::ghTransactionType_Format() {
    if (EndOfData()) return;
    const std::int32_t type = (Mark(), CurrentRow().Integer(columns_.type));
    if (type < 1 || type > 4) return;
    lblTransactionType.SetText({});
    Mark(), lblTransactionType.SetText(PlainText(App(), kGroupTexts[type - 1]));
}

// The home amount says to which group an item belongs, so it must be readable in any account.
Currency ReconciliationReport::ReadAmount(const Row& item) try {
    const Currency home = item.Amount(columns_.amount);
    const Currency amount = (foreign_ ? item.Amount(columns_.foreign) : home).Abs();
    group_total_.Add(amount);
    return amount;
} catch (...) {
    group_total_.Lose();
    throw;
}

void ReconciliationReport::PutText(Control& control, const Row& item, Column column) {
    text_.clear();
    item.AppendText(column, text_);
    control.SetText(text_);
}

void ReconciliationReport::Detail_Format() {
    if (EndOfData()) return;
    const Row& item = CurrentRow();
    for (Control* control : {&txtDetDate, &txtDetRef, &txtDetDesc, &txtAmount}) {
        control->Clear();
        control->SetTag({});
    }
    const Currency amount = (Mark(), ReadAmount(item));
    Mark(), ReadDocumentKey(item, columns_.source, columns_.source_key, text_);
    for (Control* control : {&txtDetDate, &txtDetRef, &txtDetDesc, &txtAmount})
        control->SetTag(text_);
    PutText(txtDetRef, item, columns_.reference);
    PutText(txtDetDesc, item, columns_.description);
    if (!amount.IsZero()) Mark(), PutInAccountCurrency(txtAmount, amount);
    if (!item.IsNull(columns_.date))
        Mark(), PutDate(App().GetFormats(), txtDetDate, item.Day(columns_.date), text_);
}

void ReconciliationReport::gfTransactionType_Format() {
    const KnownSum total = std::exchange(group_total_, {});
    txtGroupTotal.Clear();
    if (total.Known()) Mark(), PutInAccountCurrency(txtGroupTotal, total.Value());
}

void ReconciliationReport::ReportFooter_Format() {
    for (const char* name :
         {"txtEndBal", "txtDepCirc", "txtChqCirc", "txtAdjustedBal", "txtGLBal", "txtDif"})
        At(name).Clear();
    const auto& [ending, deposits, withdrawals, ledger, difference] = figures_;
    Figures::Figure adjusted;
    if (ending && deposits && withdrawals) adjusted = *ending + *deposits - *withdrawals;
    const std::pair<const char*, Figures::Figure> figures[] = {
        {"txtEndBal", ending},        {"txtDepCirc", deposits}, {"txtChqCirc", withdrawals},
        {"txtAdjustedBal", adjusted}, {"txtGLBal", ledger},     {"txtDif", difference}};
    Mark(), At("lblDepCirc").SetText(PlainText(App(), kDeposits) + ": ");
    Mark(), At("lblChqCirc").SetText(PlainText(App(), kWithdrawals) + ": ");
    for (const auto& [name, figure] : figures)
        if (figure) Mark(), PutInAccountCurrency(At(name), *figure);
}

}  // namespace varnel::reports
