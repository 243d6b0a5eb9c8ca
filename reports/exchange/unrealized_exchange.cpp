#include "reports/exchange/unrealized_exchange.h"

#include <utility>

#include "framework/cell_values.h"
#include "framework/exchange_rates_note.h"
#include "framework/filter_sort_subreport.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "reports/exchange/account_caption.h"
#include "reports/exchange/unrealized_exchange_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kSubtotal = 2710;

constexpr std::string_view kSelect =
    "SELECT GLAcct.InGLAcctId, GLAcct.GLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, "
    "       GLDet.SeqNo, GLDet.DetDesc, GLDet.ExChangeRate, SUM(ForeignAmnt) As AcctBalForeign, "
    "       SUM(DetAmnt) As AcctBalHome, WorldCurrency.CurrencyCode, WorldCurrency.Descr "
    "FROM (GLAcct "
    "INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) "
    "LEFT JOIN WorldCurrency on GLDet.ExCurrencyID = WorldCurrency.InCurrencyId "
    "WHERE ((ChqAcct <> 0 AND GLAcct.ExCurrencyId <> ?) OR "
    "      InGLAcctId IN ( ";

constexpr std::string_view kOtherAccounts =
    ") OR "
    "      InGLAcctId IN ( ";

constexpr std::string_view kForeignUpTo =
    ")) AND "
    "      GLDet.ExCurrencyId <> ? AND GLDet.DetDate <= ? ";

constexpr std::string_view kGroupAndOrder =
    " GROUP BY WorldCurrency.CurrencyCode, WorldCurrency.Descr, GLAcct.GLAcctId, "
    "GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, GLDet.SeqNo, GLDet.ExChangeRate, "
    "GLDet.DetDesc "
    " ORDER BY WorldCurrency.CurrencyCode, GLAcct.GLAcctId, GLDet.DetDate, GLDet.SeqNo ";

using Report = dsrUnRealExchProfitloss;

}  // namespace

dsrUnRealExchProfitloss::dsrUnRealExchProfitloss()
    : ReportBase(UnrealizedExchangeLayout(),
                 {.title_text = 30010, .date_display = DateDisplay::kClosingDate}),
      SegmentFilter(Members()),
      FilterableReport(Members()),
      RatesAtStart(Members()) {
    Handle("PageHeader_Format", &Report::PageHeader_Format);
    Handle("ghCurrency_Format", &Report::ghCurrency_Format);
    Handle("ghAccountType_Format", &Report::ghAccountType_Format);
    Handle("Detail_Format", &Report::Detail_Format);
    Handle("gfAccountType_Format", &Report::gfAccountType_Format);
    Handle("gfCurrency_Format", &Report::gfCurrency_Format);
    Handle("ReportFooter_Format", &Report::ReportFooter_Format);
}

void dsrUnRealExchProfitloss::Totals::Add(const Totals& part) {
    const bool both_known = known && part.known;
    known = false;  // Stays so when a sum overflows.
    booked += part.booked;
    revalued += part.revalued;
    gain += part.gain;
    known = both_known;
}

// A report that could not start knows no total either.
void dsrUnRealExchProfitloss::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        account_foreign_ = {};
        account_ = {};
        currency_ = {};
        report_ = {};
        report_.known = false;
        Mark(), ConfigureRates(GetCurrencyInfo(), DateTo(), FilterPieces());
        Mark(), revaluer_.emplace(GetCurrencyInfo(), *this);
        accounts_.emplace();
        Mark(), accounts_->Init(AppRef(), 0);
        const std::string statement = BuildStatement();
        const Variant parameters[] = {HomeCurrencyId(), HomeCurrencyId(), DateTo()};
        auto rows = (Mark(), RunQuery(App(), statement, parameters));
        Mark(), columns_.Resolve(rows->GetColumns());
        Mark(), account_column_ = rows->GetColumns().At("InGLAcctId");
        Data().Attach(std::move(rows));
        report_.known = true;
        Mark(), At(kPeriodLabel).SetText(ClosingDateCaption(App(), DateTo()));
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), {}, nullptr);
    });
}

void dsrUnRealExchProfitloss::ActiveReport_Terminate() {
    accounts_.reset();
    ReportBase::ActiveReport_Terminate();
}

std::string dsrUnRealExchProfitloss::BuildStatement() {
    std::string statement(kSelect);
    Mark(), statement += GetCurrencyInfo().GetCurrencies().GetAllARAPGLAccountUsed();
    statement += kOtherAccounts;
    Mark(), statement += CurrentCompany().Accounts().OtherRevaluedAccountIds();
    statement += kForeignUpTo;
    if (IsSegmentFiltered()) statement += " AND " + SegmentClauseOn("GLDet.ExSegmentId") + " ";
    statement += kGroupAndOrder;
    return statement;
}

void dsrUnRealExchProfitloss::PutAmount(Control& control, Currency amount,
                                        std::int32_t currency_id) {
    Mark(), PutAmountIn(GetCurrencyInfo(), control, amount, currency_id, text_);
}

void dsrUnRealExchProfitloss::PutTotals(const TotalControls& controls, const Totals& totals) {
    for (Control* control : {&controls.booked, &controls.revalued, &controls.gain})
        control->Clear();
    if (!totals.known) return;
    PutAmount(controls.booked, totals.booked, HomeCurrencyId());
    PutAmount(controls.revalued, totals.revalued, HomeCurrencyId());
    PutAmount(controls.gain, totals.gain, HomeCurrencyId());
}

void dsrUnRealExchProfitloss::PageHeader_Format() {
    Mark(), ShowExchangeRatesNote(App(), GetSurface(), *this);
    ReplacePageHeaderControls(PageHeader);
}

void dsrUnRealExchProfitloss::ghCurrency_Format() {
    currency_ = {};
    Mark(), currency_id_ = CurrentRow().Integer(columns_.currency_id);
}

void dsrUnRealExchProfitloss::ghAccountType_Format() {
    ghAccountType.Skip();
    Mark(), account_id_ = CurrentRow().Integer(account_column_);
}

// One balance that cannot be valued is told; the others of its account would only tell it again.
void dsrUnRealExchProfitloss::Detail_Format() {
    Detail.Skip();
    if (EndOfData() || !account_.known) return;
    account_.known = false;
    AddBalance();
    account_.known = true;
}

void dsrUnRealExchProfitloss::AddBalance() {
    const LedgerBalance balance = (Mark(), columns_.Read(CurrentRow()));
    const Revaluation worth = (Mark(), revaluer_->Evaluate(balance));
    Mark(), account_foreign_ +=
            balance.currency_id == HomeCurrencyId() ? balance.home : balance.foreign;
    Mark(), account_.Add({balance.home, worth.revalued, worth.gain});
}

void dsrUnRealExchProfitloss::gfAccountType_Format() {
    const Totals account = std::exchange(account_, {});
    const Currency foreign = std::exchange(account_foreign_, {});
    txtAccount.Clear();
    txtForeign.Clear();
    SetAccountKey();
    AddAccount(account);
    PutTotals(account_totals_, account);
    Mark(), txtAccount.SetText(CaptionOf(*accounts_, account_id_, true));
    if (account.known) PutAmount(txtForeign, foreign, currency_id_);
}

// A currency's total that overflows makes the report's unknown too.
void dsrUnRealExchProfitloss::AddAccount(const Totals& account) {
    const bool known = std::exchange(report_.known, false);
    Mark(), currency_.Add(account);
    report_.known = known;
    Mark(), report_.Add(account);
}

void dsrUnRealExchProfitloss::SetAccountKey() {
    text_ = AccountKey(account_id_) + "|" + std::to_string(currency_id_);
    for (Control* control : {&txtAccount, &txtForeign, &txtCode, &account_totals_.booked,
                             &account_totals_.revalued, &account_totals_.gain})
        control->SetTag(text_);
}

void dsrUnRealExchProfitloss::gfCurrency_Format() {
    const Totals currency = std::exchange(currency_, {});
    txtCurrencyTotal.Clear();
    PutTotals(currency_totals_, currency);
    auto& currencies = (Mark(), GetCurrencyInfo().GetCurrencies());
    Mark(), text_ = PlainText(App(), kSubtotal) + " ";
    Mark(), text_ += currencies.Item(currency_id_).code;
    txtCurrencyTotal.SetText(text_);
}

void dsrUnRealExchProfitloss::ReportFooter_Format() {
    if (report_.known) PutAmount(txtGainGrandTotal, report_.gain, HomeCurrencyId());
    const std::string& date = IExchangeRates_ExchangeRatesDate();
    const bool foreign_used = (Mark(), GetCurrencyInfo().CieIsForeignCurrencyUsed());
    if (foreign_used && !date.empty()) Mark(), txtRatesDate.SetText(ExchangeRatesText(App(), date));
}

}  // namespace varnel::reports
