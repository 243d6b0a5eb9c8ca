#include "reports/exchange/realized_exchange.h"

#include <utility>

#include "framework/cell_values.h"
#include "framework/dialect.h"
#include "framework/filter_sort_subreport.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "host/decimal.h"
#include "reports/exchange/account_caption.h"
#include "reports/exchange/realized_exchange_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kCurrencyCaption = 5846;

constexpr std::string_view kSelect =
    "SELECT CurrPmtDet_View.PmtAmnt, CurrPmtDet_View.PmtDisc, "
    "CurrPmtDet_View.ExchangeRate, CurrPmtDet_View.PmtRate, "
    "CurrPmtDet_View.CurrPmtType, CurrPmtDet_View.Source, "
    "CurrPmtDet_View.InInvoiId, CurrPmtDet_View.InPmtId, "
    "CurrPmtDet_View.ExCurrencyId, CurrPmtDet_View.ExGLAcctId, "
    "CurrPmtDet_View.PmtDate, CurrPmtDet_View.Name, CurrPmtDet_View.InvoiId, "
    "CurrPmtDet_View.ChqNo, WorldCurrency.CurrencyCode, WorldCurrency.Descr, ";
constexpr std::string_view kDesktopDescription =
    "(WorldCurrency.CurrencyCode & ' - ' & WorldCurrency.Descr) AS FullCurrencyDescr ";
constexpr std::string_view kServerDescription =
    "(WorldCurrency.CurrencyCode + ' - ' + WorldCurrency.Descr) AS FullCurrencyDescr ";
constexpr std::string_view kFrom =
    "FROM CurrPmtDet_View LEFT JOIN WorldCurrency "
    "ON WorldCurrency.InCurrencyId = CurrPmtDet_View.ExCurrencyId "
    "WHERE CurrPmtDet_View.PmtDate BETWEEN ? AND ? "
    "AND CurrPmtDet_View.ExCurrencyId <> ? ";

/// What the host opens for a kind of payment, and where its control account stands.
struct PaymentKind {
    std::int32_t type;
    std::string_view key;
    /// The currency's own account; null for payments that name theirs row by row.
    std::int32_t CurrencyRecord::*currency_account;
    std::string_view company_account;
};

constexpr PaymentKind kKinds[] = {
    {payment_type::kCustomerPayment, "PMT|", &CurrencyRecord::ar_account_id, "CustGLAR"},
    {payment_type::kSupplierCheque, "CDI|", &CurrencyRecord::ap_account_id, "SuppGLAP"},
    {payment_type::kDeposit, "DEP|", nullptr, {}},
};

const PaymentKind* KindOf(std::int32_t payment_type) {
    for (const auto& kind : kKinds)
        if (kind.type == payment_type) return &kind;
    return nullptr;
}

constexpr int kRateDecimals = 4;

/// Rates are read like amounts, to four decimals. Error 6 for one that does not fit.
Rate ReadRate(const Row& row, Column column) {
    constexpr std::int64_t kUnit = Rate::kScale / Currency::kScale;
    const Int128 scaled = Int128{row.Amount(column).Scaled()} * kUnit;
    return Rate::FromScaled(decimal::Narrow(scaled, "The exchange rate"));
}

void AppendRate(Formats& formats, Rate rate, std::string& out) {
    const double number = static_cast<double>(rate.Scaled()) / static_cast<double>(Rate::kScale);
    formats.AppendNumber(number, kRateDecimals, out);
}

}  // namespace

dsrRealizedExchProfitloss::dsrRealizedExchProfitloss()
    : ReportBase(
          RealizedExchangeLayout(),
          {.title_text = 30012, .date_display = DateDisplay::kFromTo, .by_account_number = true}),
      SegmentFilter(Members()),
      FilterableReport(Members()) {
    Handle("PageHeader_Format", &dsrRealizedExchProfitloss::PageHeader_Format);
    Handle("ghCurrency_Format", &dsrRealizedExchProfitloss::ghCurrency_Format);
    Handle("ghCurrPmtType_Format", &dsrRealizedExchProfitloss::ghCurrPmtType_Format);
    Handle("Detail_Format", &dsrRealizedExchProfitloss::Detail_Format);
    Handle("gfCurrPmtType_Format", &dsrRealizedExchProfitloss::gfCurrPmtType_Format);
    Handle("ReportFooter_Format", &dsrRealizedExchProfitloss::ReportFooter_Format);
}

void dsrRealizedExchProfitloss::PaymentColumns::Resolve(const Columns& columns) {
    amount = columns.At("PmtAmnt");
    discount = columns.At("PmtDisc");
    invoice_rate = columns.At("ExchangeRate");
    payment_rate = columns.At("PmtRate");
    type = columns.At("CurrPmtType");
    source = columns.At("Source");
    invoice_id = columns.At("InInvoiId");
    payment_id = columns.At("InPmtId");
    currency_id = columns.At("ExCurrencyId");
    account_id = columns.At("ExGLAcctId");
    date = columns.At("PmtDate");
    currency_code = columns.At("CurrencyCode");
}

void dsrRealizedExchProfitloss::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        group_ = Totals();
        report_gain_.reset();
        currency_id_ = 0;
        payment_type_ = 0;
        foreign_used_ = false;
        Mark(), foreign_used_ = GetCurrencyInfo().CieIsForeignCurrencyUsed();
        LoadAccounts();
        const std::string statement = BuildStatement();
        const Variant parameters[] = {DateFrom(), DateTo(), HomeCurrencyId()};
        auto rows = (Mark(), RunQuery(App(), statement, parameters));
        Mark(), columns_.Resolve(rows->GetColumns());
        Data().Attach(std::move(rows));
        report_gain_ = Currency();
        Mark(), At(kPeriodLabel).SetText(JournalPeriodCaption(App(), DateFrom(), DateTo()));
        const auto custom = Criteria();
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), custom, Tool());
    });
}

void dsrRealizedExchProfitloss::ActiveReport_Terminate() {
    accounts_.reset();
    ReportBase::ActiveReport_Terminate();
}

// Before the rows are asked for: a query beside an open row set may end it in some databases.
void dsrRealizedExchProfitloss::LoadAccounts() {
    accounts_.emplace();
    Mark(), accounts_->Init(AppRef(), 0);
}

std::string dsrRealizedExchProfitloss::BuildStatement() {
    const auto dialect = (Mark(), DialectOf(App().CurrentContext().Database()));
    std::string statement(kSelect);
    statement += dialect == Dialect::kDesktop ? kDesktopDescription : kServerDescription;
    statement += kFrom;
    if (FilterTool* const tool = Tool(); tool != nullptr)
        Mark(), tool->SetTables("CurrPmtDet_View, WorldCurrency");
    if (IsSegmentFiltered())
        statement += " AND " + SegmentClauseOn("CurrPmtDet_View.ExSegmentId") + " ";
    const CustomCriteria custom = Criteria();
    statement += custom.AndClause();
    statement += custom.OrderClause(
        " ORDER BY ExCurrencyId, CurrPmtType, CurrPmtDet_View.PmtDate, ",
        " ORDER BY  ExCurrencyId, CurrPmtType, CurrPmtDet_View.PmtDate, CurrPmtDet_View.ChqNo ");
    return statement;
}

void dsrRealizedExchProfitloss::PageHeader_Format() { ReplacePageHeaderControls(PageHeader); }

void dsrRealizedExchProfitloss::ghCurrency_Format() {
    txtCurrency.Clear();
    currency_id_ = 0;
    ghCurrency.SetVisible(foreign_used_);
    if (EndOfData()) return;
    Mark(), currency_id_ = CurrentRow().Integer(columns_.currency_id);
    if (!foreign_used_) return;
    Mark(), text_ = PlainText(App(), kCurrencyCaption);
    text_ += ' ';
    CurrentRow().AppendText(columns_.currency_code, text_);
    txtCurrency.SetText(text_);
}

std::int32_t dsrRealizedExchProfitloss::ControlAccountId() {
    const PaymentKind* const kind = KindOf(payment_type_);
    if (kind == nullptr) return 0;
    if (kind->currency_account == nullptr)
        return (Mark(), CurrentRow().Integer(columns_.account_id));
    if (foreign_used_ && currency_id_ != HomeCurrencyId())
        return (Mark(),
                GetCurrencyInfo().GetCurrencies().Item(currency_id_).*kind->currency_account);
    return (Mark(), CurrentCompany().GetGLAccountParam(kind->company_account, kCompanySection));
}

void dsrRealizedExchProfitloss::ghCurrPmtType_Format() {
    txtAccount.Clear();
    txtAccount.SetTag({});
    payment_type_ = 0;
    if (EndOfData()) return;
    Mark(), payment_type_ = CurrentRow().Integer(columns_.type);
    const std::int32_t account_id = ControlAccountId();
    if (account_id == 0) return;
    Mark(), txtAccount.SetText(CaptionOf(*accounts_, account_id, UseAccountNumbers()));
    txtAccount.SetTag(AccountKey(account_id));
}

void dsrRealizedExchProfitloss::ShowKeys() {
    const Row& row = CurrentRow();
    Mark(), ReadDocumentKey(row, columns_.source, columns_.invoice_id, text_);
    for (Control* control : {&txtName, &txtInvoiId, &txtExchangeRate}) control->SetTag(text_);

    Control* const of_payment[] = {&txtPmtDate, &txtChqNo, &txtPmtRate, &txtPaid};
    for (Control* control : of_payment) control->SetTag({});
    const PaymentKind* const kind = (Mark(), KindOf(row.Integer(columns_.type)));
    if (kind == nullptr) return;
    text_ = kind->key;
    row.AppendText(columns_.payment_id, text_);
    for (Control* control : of_payment) control->SetTag(text_);
}

AppliedPayment dsrRealizedExchProfitloss::ReadPayment() {
    const Row& row = CurrentRow();
    AppliedPayment payment;
    Mark(), payment.type = row.Integer(columns_.type);
    Mark(), payment.amount = row.Amount(columns_.amount);
    Mark(), payment.discount = row.Amount(columns_.discount);
    Mark(), payment.invoice_rate = ReadRate(row, columns_.invoice_rate);
    Mark(), payment.payment_rate = ReadRate(row, columns_.payment_rate);
    return payment;
}

void dsrRealizedExchProfitloss::ShowDate() {
    if (CurrentRow().IsNull(columns_.date)) return;
    const Date date = (Mark(), CurrentRow().Day(columns_.date));
    Mark(), PutDate(App().GetFormats(), txtPmtDate, date, text_);
}

void dsrRealizedExchProfitloss::PutRate(Control& control, Rate rate) {
    text_.clear();
    Mark(), AppendRate(App().GetFormats(), rate, text_);
    control.SetValue(rate, text_);
}

void dsrRealizedExchProfitloss::PutHome(Control& control, Currency amount) {
    Mark(), PutAmount(App().GetFormats(), control, amount, text_);
}

// Nothing of the row before is left and the totals are added up before the host formats anything.
void dsrRealizedExchProfitloss::Detail_Format() {
    if (EndOfData()) return;
    for (Control* control : {&txtPmtDate, &txtExchangeRate, &txtPmtRate, &txtPaid, &txtGain})
        control->Clear();
    const auto group = std::exchange(group_, std::nullopt);
    const auto report_gain = std::exchange(report_gain_, std::nullopt);
    ShowKeys();
    const AppliedPayment payment = ReadPayment();
    const Currency paid = (Mark(), payment.Settled());
    const Currency gain = (Mark(), RealizedGain(GetCurrencyInfo(), payment));
    if (group) Mark(), group_ = Totals{group->paid + paid, group->gain + gain};
    if (report_gain) Mark(), report_gain_ = *report_gain + gain;

    PutHome(txtGain, gain);
    PutRate(txtExchangeRate, payment.invoice_rate);
    PutRate(txtPmtRate, payment.payment_rate);
    ShowDate();
    Mark(), PutAmountIn(GetCurrencyInfo(), txtPaid, paid, currency_id_, text_);
}

void dsrRealizedExchProfitloss::gfCurrPmtType_Format() {
    const auto group = std::exchange(group_, Totals());
    txtPaidTotal.Clear();
    txtGainTotal.Clear();
    if (!group) return;
    PutHome(txtPaidTotal, group->paid);
    PutHome(txtGainTotal, group->gain);
}

void dsrRealizedExchProfitloss::ReportFooter_Format() {
    if (report_gain_) PutHome(txtGainGrandTotal, *report_gain_);
}

}  // namespace varnel::reports
