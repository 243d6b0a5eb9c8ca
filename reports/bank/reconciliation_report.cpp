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

template <auto member>
Variant GetSubjectValue(ReconciliationReport& report) {
    return report.GetSubject().*member;
}
template <Currency ReconciliationFigures::*figure>
Variant GetFigure(ReconciliationReport& report) {
    return report.GetFigures().*figure;
}
template <Currency ReconciliationFigures::*figure>
void PutFigure(ReconciliationReport& report, const Variant& value) {
    report.GetFigures().*figure = value.ToCurrency();
}

using Subject = ReconciliationReport::Subject;
using Figures = ReconciliationFigures;

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
}

bool ReconciliationReport::IsForeign(std::int32_t currency_id) {
    return currency_id != (Mark(), GetCurrencyInfo().CieHomeCurrencyId());
}

void ReconciliationReport::ForgetItems() {
    currency_id_.reset();
    LoseTotal();
}

void ReconciliationReport::StartItems() {
    auto& accounts = (Mark(), CurrentCompany().Accounts());
    const std::int32_t currency_id = (Mark(), accounts.CurrencyOf(subject_.account_id));
    foreign_ = IsForeign(currency_id);
    currency_id_ = currency_id;
    group_total_ = {};
}

// Without a currency the amount stays blank: why was told when the run began.
void ReconciliationReport::PutInAccountCurrency(Control& control, Currency amount) {
    if (currency_id_) PutAmountIn(GetCurrencyInfo(), control, amount, *currency_id_, text_);
}

void ReconciliationReport::PageHeader_Format() {
    Mark(), At("lblConcilAcct").SetText(PlainText(App(), kAccount));
    At("txtConcilAcctId").SetText(subject_.account_number);
    Mark(), At("lblConcDate").SetText(PlainText(App(), kStatementDate));
    Mark(), PutDate(App().GetFormats(), At("txtConcDate"), subject_.statement_date, text_);
    ReplacePageHeaderControls(SectionAt("PageHeader"));
}

// Another value leaves the caption as it is.
void ReconciliationReport::ghTransactionType_Format() {
    if (EndOfData()) return;
    const std::int32_t type = (Mark(), CurrentRow().Integer(transaction_type_));
    if (type < 1 || type > 4) return;
    lblTransactionType.SetText({});
    Mark(), lblTransactionType.SetText(PlainText(App(), kGroupTexts[type - 1]));
}

Currency ReconciliationReport::ReadAmount(const Row& item, const ItemColumns& columns) try {
    const Currency amount = item.Amount(foreign_ ? columns.foreign : columns.amount).Abs();
    group_total_.Add(amount);
    return amount;
} catch (...) {
    group_total_.Lose();
    throw;
}

void ReconciliationReport::ShowItem(const Row& item, const ItemColumns& columns) {
    for (Control* control : {&txtDetDate, &txtDetRef, &txtDetDesc, &txtAmount}) {
        control->Clear();
        control->SetTag({});
    }
    const Currency amount = (Mark(), ReadAmount(item, columns));
    Mark(), ReadDocumentKey(item, columns.source, columns.source_key, text_);
    for (Control* control : {&txtDetDate, &txtDetRef, &txtDetDesc, &txtAmount})
        control->SetTag(text_);
    if (!amount.IsZero()) Mark(), PutInAccountCurrency(txtAmount, amount);
    if (!item.IsNull(columns.date))
        Mark(), PutDate(App().GetFormats(), txtDetDate, item.Day(columns.date), text_);
    Mark(), txtDetRef.SetText(item.Text(columns.reference));
    Mark(), txtDetDesc.SetText(item.Text(columns.description));
}

void ReconciliationReport::gfTransactionType_Format() {
    const KnownSum total = std::exchange(group_total_, {});
    txtGroupTotal.Clear();
    if (total.Known()) Mark(), PutInAccountCurrency(txtGroupTotal, total.Value());
}

void ReconciliationReport::ReportFooter_Format() {
    const auto& [ending, deposits, withdrawals, ledger, difference] = figures_;
    const std::pair<const char*, Currency> amounts[] = {
        {"txtEndBal", ending},       {"txtDepCirc", deposits},
        {"txtChqCirc", withdrawals}, {"txtAdjustedBal", ending + deposits - withdrawals},
        {"txtGLBal", ledger},        {"txtDif", difference}};
    for (const auto& [name, amount] : amounts) At(name).Clear();
    Mark(), At("lblDepCirc").SetText(PlainText(App(), kDeposits) + ": ");
    Mark(), At("lblChqCirc").SetText(PlainText(App(), kWithdrawals) + ": ");
    for (const auto& [name, amount] : amounts) Mark(), PutInAccountCurrency(At(name), amount);
}

}  // namespace varnel::reports
