#include "reports/exchange/unrealized_exchange_detail.h"

#include <utility>

#include "framework/cell_values.h"
#include "framework/exchange_rates_note.h"
#include "framework/filter_sort_subreport.h"
#include "framework/ledger_balance_columns.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "host/member_table.h"
#include "reports/exchange/account_caption.h"
#include "reports/exchange/unrealized_exchange_detail_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

using Report = dsrUnRealExchProfitlossDetail;

constexpr Member<Report> kMembers[] = {
    {"ExCurrencyId", [](Report& r) -> Variant { return r.ExCurrencyId(); },
     [](Report& r, const Variant& v) { r.ExCurrencyId(v.ToInteger32()); }},
    {"GLAcctId", [](Report& r) -> Variant { return r.GLAcctId(); },
     [](Report& r, const Variant& v) { r.GLAcctId(v.ToInteger32()); }},
};

constexpr std::string_view kSelectLines =
    "SELECT GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, "
    "ForeignAmnt As AcctBalForeign, DetAmnt As AcctBalHome, "
    "GLDet.DetDesc, GLDet.Source, GLDet.ExSrcKeyVal, WorldCurrency.CurrencyCode, "
    "WorldCurrency.Descr "
    "FROM (GLAcct "
    "INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) "
    "LEFT JOIN WorldCurrency on GLDet.ExCurrencyID = WorldCurrency.InCurrencyId "
    "WHERE GLDet.ExCurrencyId = ? AND InGLAcctId  = ? "
    "AND GLDet.DetDate BETWEEN ? AND ? ";

constexpr std::string_view kSelectBalance =
    "SELECT GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, "
    "       GLDet.SeqNo, GLDet.DetDesc, GLDet.ExChangeRate, SUM(ForeignAmnt) As AcctBalForeign, "
    "       SUM(DetAmnt) As AcctBalHome, WorldCurrency.CurrencyCode, WorldCurrency.Descr "
    "FROM (GLAcct "
    "INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) "
    "LEFT JOIN WorldCurrency on GLDet.ExCurrencyID = WorldCurrency.InCurrencyId "
    "WHERE GLAcct.InGLAcctId = ? AND "
    "GLDet.DetDate <= ? ";

constexpr std::string_view kGroupBalance =
    "GROUP BY GLAcct.InGLAcctId, WorldCurrency.CurrencyCode, WorldCurrency.Descr, "
    "GLDet.ExCurrencyId, GLDet.DetDate, GLDet.SeqNo, GLDet.ExChangeRate, GLDet.DetDesc";

constexpr std::string_view kSegment = "GLDet.ExSegmentId";

}  // namespace

Report::dsrUnRealExchProfitlossDetail()
    : ReportBase(UnrealizedExchangeDetailLayout(),
                 {.title_text = 30011, .date_display = DateDisplay::kFromTo}),
      SegmentFilter(Members()),
      FilterableReport(Members()),
      RatesAtStart(Members()) {
    Members().Add<Report>(*this, kMembers);
    Handle("PageHeader_Format", &Report::PageHeader_Format);
    Handle("ghGLAcct_Format", &Report::ghGLAcct_Format);
    Handle("Detail_Format", &Report::Detail_Format);
    Handle("ReportFooter_Format", &Report::ReportFooter_Format);
}

Report::Position Report::Position::Of(const LedgerBalance& balance, const Revaluation& worth) {
    return {balance.foreign, balance.home, worth.revalued, worth.gain};
}

Report::Position Report::Position::operator+(const Position& other) const {
    return {foreign + other.foreign, home + other.home, revalued + other.revalued,
            gain + other.gain};
}

void Report::LineColumns::Resolve(const Columns& columns) {
    date = columns.At("DetDate");
    foreign = columns.At("AcctBalForeign");
    home = columns.At("AcctBalHome");
    description = columns.At("DetDesc");
    source = columns.At("Source");
    source_key = columns.At("ExSrcKeyVal");
}

void Report::AmountControls::Clear() {
    for (Control* control : {&foreign, &home, &revalued, &gain}) control->Clear();
}

// The forward is read before the lines: a database need not serve two row sets at a time, and the
// closing balance is right for a period without lines too.
void Report::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        forward_.reset();
        period_.reset();
        ShowNames();
        Mark(), ConfigureRates(GetCurrencyInfo(), DateTo(), FilterPieces());
        RequireRate();
        forward_ = BroughtForward();
        const std::string statement = LinesStatement();
        const Variant parameters[] = {ex_currency_id_, gl_acct_id_, DateFrom(), DateTo()};
        auto rows = (Mark(), RunQuery(App(), statement, parameters));
        Mark(), columns_.Resolve(rows->GetColumns());
        Data().Attach(std::move(rows));
        period_.emplace();
        Mark(), At(kPeriodLabel).SetText(JournalPeriodCaption(App(), DateFrom(), DateTo()));
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), {}, nullptr);
    });
}

void Report::ShowNames() {
    CGLAccts accounts;
    Mark(), accounts.Init(AppRef(), 0);
    const std::string account = (Mark(), CaptionOf(accounts, gl_acct_id_, true));
    Mark(), currency_code_ = GetCurrencyInfo().GetCurrencies().Item(ex_currency_id_).code;
    Control& caption = At("lblForeignCap");
    caption.SetText(caption.Text() + " " + currency_code_);
    At("txtCurrency").SetText(currency_code_);
    for (const auto* name : {"txtAccount", "txtClosingAccount"}) {
        At(name).SetText(account);
        At(name).SetTag(AccountKey(gl_acct_id_));
    }
}

// Told once, here, rather than at every line.
void Report::RequireRate() {
    if (!(Mark(), GetCurrencyInfo().CieIsForeignCurrencyUsed())) return;
    const auto& rates = IExchangeRates_ExchangeRates();
    if (rates != nullptr && rates->Has(ex_currency_id_)) return;
    const auto& date = IExchangeRates_ExchangeRatesDate();
    Raise(error_number::kInvalidArgument, std::string(ObjectName()),
          "There is no exchange rate for " + currency_code_ + (date.empty() ? "" : " at " + date));
}

std::string Report::LinesStatement() const {
    std::string statement(kSelectLines);
    if (IsSegmentFiltered()) statement += " AND " + SegmentClauseOn(kSegment) + " ";
    return statement + " ORDER BY DetDate, SeqNo ";
}

// Lines without a segment, where they are wanted, are wanted in the forward too: the closing
// balance is that of the lines that the report takes.
std::string Report::BalanceStatement() const {
    std::string statement(kSelectBalance);
    if (TakesLinesWithoutSegment())
        statement += "AND " + SegmentClauseOn(kSegment) + " ";
    else if (IsSegmentFiltered())
        statement += "AND " + std::string(kSegment) + " IN (" + SegmentIds() + ") ";
    statement += kGroupBalance;
    return statement;
}

std::optional<Report::Position> Report::BroughtForward() {
    if (DateFrom() <= kOpenStart) return Position();
    return GetAccountBalance(DateFrom() - 1);
}

std::optional<Report::Position> Report::GetAccountBalance(Date up_to) {
    std::optional<Position> balance;
    Guard("GetAccountBalance", [&] {
        const std::string statement = BalanceStatement();
        const Variant parameters[] = {gl_acct_id_, up_to};
        const auto rows = (Mark(), RunQuery(App(), statement, parameters));
        balance = SumBalances(*rows);
    });
    return balance;
}

// The statement has no currency in its condition: rows in others are passed over.
Report::Position Report::SumBalances(Recordset& rows) {
    LedgerBalanceColumns columns;
    Mark(), columns.Resolve(rows.GetColumns());
    const Revaluer revaluer((Mark(), GetCurrencyInfo()), *this);
    Position sum;
    for (; !rows.AtEnd(); Mark(), rows.MoveNext()) {
        const LedgerBalance balance = (Mark(), columns.Read(rows.Current()));
        if (balance.currency_id != ex_currency_id_) continue;
        Mark(), sum = sum + Position::Of(balance, revaluer.Evaluate(balance));
    }
    return sum;
}

void Report::PageHeader_Format() {
    Mark(), ShowExchangeRatesNote(App(), GetSurface(), *this);
    ReplacePageHeaderControls(PageHeader);
}

void Report::ghGLAcct_Format() {
    txtForwardDate.Clear();
    PutPosition(forward_line_, forward_);
    if (DateFrom() > kOpenStart) ShowDate(txtForwardDate, DateFrom() - 1);
}

// What a failing host leaves of a line is its blank figures, and no total that lacks it.
void Report::Detail_Format() {
    if (EndOfData()) return;
    for (Control* control : line_controls_) {
        control->Clear();
        control->SetTag({});
    }
    const auto before = std::exchange(period_, std::nullopt);
    const Row& row = CurrentRow();
    const LedgerBalance line{.currency_id = ex_currency_id_,
                             .booked_rate = {},
                             .foreign = (Mark(), row.Amount(columns_.foreign)),
                             .home = (Mark(), row.Amount(columns_.home))};
    const auto worth = (Mark(), EvaluateAtKeyedRate(GetCurrencyInfo(), *this, line));
    if (before) Mark(), period_ = *before + Position::Of(line, worth);

    ShowKey();
    text_.clear();
    row.AppendText(columns_.description, text_);
    txtDetDesc.SetText(text_);
    if (!line.foreign.IsZero()) PutForeign(line_.foreign, line.foreign);
    if (!line.home.IsZero()) PutHome(line_.home, line.home);
    PutHome(line_.revalued, worth.revalued);
    PutHome(line_.gain, worth.gain);
    if (!row.IsNull(columns_.date)) ShowDate(txtDate, (Mark(), row.Day(columns_.date)));
}

void Report::ShowKey() {
    Mark(), ReadDocumentKey(CurrentRow(), columns_.source, columns_.source_key, text_);
    for (Control* control : line_controls_) control->SetTag(text_);
}

void Report::ShowDate(Control& control, Date date) {
    Mark(), PutDate(App().GetFormats(), control, date, text_);
}

void Report::PutForeign(Control& control, Currency amount) {
    Mark(), PutAmountIn(GetCurrencyInfo(), control, amount, ex_currency_id_, text_);
}

void Report::PutHome(Control& control, Currency amount) {
    Mark(), PutAmount(App().GetFormats(), control, amount, text_);
}

void Report::PutPosition(AmountControls& controls, const std::optional<Position>& position) {
    controls.Clear();
    if (!position) return;
    PutForeign(controls.foreign, position->foreign);
    PutHome(controls.home, position->home);
    PutHome(controls.revalued, position->revalued);
    PutHome(controls.gain, position->gain);
}

void Report::ReportFooter_Format() {
    closing_line_.Clear();
    PutPosition(period_line_, period_);
    if (forward_ && period_) PutPosition(closing_line_, *forward_ + *period_);
}

}  // namespace varnel::reports
