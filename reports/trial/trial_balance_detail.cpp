#include "reports/trial/trial_balance_detail.h"

#include "framework/cell_values.h"
#include "framework/exchange_rates_note.h"
#include "framework/filter_sort_subreport.h"
#include "framework/gl_config.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/styles.h"
#include "framework/texts.h"
#include "reports/trial/account_list.h"
#include "reports/trial/adjusting_lines.h"
#include "reports/trial/trial_balance_detail_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kAdjustment = 8571;

constexpr std::string_view kHead =
    "SELECT SubQuery.*, "
    "AcctType, InGlAcctId, GLAcctId, GLAcct.ExCurrencyId, GLAcct.Descr, "
    "WorldCurrency.CurrencyCode FROM (GLAcct LEFT JOIN "
    "(Select InGLDetId, DetDate, DetAmnt, ForeignAmnt, GLDet.ExCurrencyId as GLDetExCurrencyId, "
    "Source, ExSrcKeyVal, DetDesc, SeqNo, ExAcctId FROM GLDet ";
constexpr std::string_view kTail =
    ") as SubQuery "
    "ON GLAcct.InGLAcctId = SubQuery.ExAcctId) "
    "LEFT JOIN WorldCurrency ON GLAcct.ExCurrencyId = WorldCurrency.InCurrencyId";
constexpr std::string_view kOrder = " ORDER BY GLAcct.GLAcctId, SubQuery.DetDate, SubQuery.SeqNo";

std::string LineCondition(const std::string& project_ids) {
    if (project_ids.empty())
        return "WHERE GLDet.DetAmnt <> 0 AND "
               "GLDet.DetDate BETWEEN ? AND ? ";
    return "WHERE GLDet.DetAmnt <> 0 AND GLDet.ExProjId IN (" + project_ids +
           ") AND "
           "GLDet.DetDate BETWEEN ? AND ?";
}

void AddCondition(std::string& where, const std::string& condition) {
    where += (where.empty() ? " WHERE " : " AND ") + condition;
}

constexpr Member<dsrTrialBalanceDetail> kMembers[] = {
    {"HideInactiveAccounts",
     [](dsrTrialBalanceDetail& r) -> Variant { return r.GetSelection().hide_inactive; },
     [](dsrTrialBalanceDetail& r, const Variant& v) {
         r.GetSelection().hide_inactive = v.ToBool();
     }},
    {"ProjIds", [](dsrTrialBalanceDetail& r) -> Variant { return r.GetSelection().project_ids; },
     [](dsrTrialBalanceDetail& r, const Variant& v) { r.GetSelection().project_ids = v.ToText(); }},
    {"AccountIds", [](dsrTrialBalanceDetail& r) -> Variant { return r.GetSelection().account_ids; },
     [](dsrTrialBalanceDetail& r, const Variant& v) { r.GetSelection().account_ids = v.ToText(); }},
    {"SingleAcctId",
     [](dsrTrialBalanceDetail& r) -> Variant { return r.GetSelection().single_account; },
     [](dsrTrialBalanceDetail& r, const Variant& v) {
         r.GetSelection().single_account = v.ToInteger32();
     }},
};

}  // namespace

dsrTrialBalanceDetail::dsrTrialBalanceDetail()
    : TrialReport(
          TrialBalanceDetailLayout(),
          {.title_text = 30002, .date_display = DateDisplay::kFromTo, .by_fiscal_year = true}),
      ComparableReport(Members(), ObjectName()) {
    Members().Add<dsrTrialBalanceDetail>(*this, kMembers);
    Handle("PageHeader_Format", &dsrTrialBalanceDetail::PageHeader_Format);
    Handle("ghAccount_Format", &dsrTrialBalanceDetail::ghAccount_Format);
    Handle("Detail_Format", &dsrTrialBalanceDetail::Detail_Format);
    Handle("gfAccount_Format", &dsrTrialBalanceDetail::gfAccount_Format);
    Handle("ReportFooter_Format", &dsrTrialBalanceDetail::ReportFooter_Format);
}

void dsrTrialBalanceDetail::IReportConfig_ShowConfigurationScreen() {
    Guard("IReportConfig_ShowConfigurationScreen", [&] {
        Mark(), include_zero_balances_ = AskIncludeZeroBalance(App(), include_zero_balances_);
    });
}

// A report that could not start knows no total.
void dsrTrialBalanceDetail::ActiveReport_ReportStart() {
    Guard("SetComparableAccoutGroup", [&] { Mark(), StartComparing(App()); });
    Guard("ActiveReport_ReportStart", [&] {
        sums_.Lose();
        foreign_used_ = false;
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        Mark(), foreign_used_ = GetCurrencyInfo().CieIsForeignCurrencyUsed();
        lines_.PlaceDescription(DisplayForeignCurrency(),
                                DisplayForeignCurrency() && foreign_used_);
        const std::string statement = BuildStatement();
        StartAmounts(ForwardPeriod(selection_.project_ids));
        std::vector<Variant> parameters = {DateFrom(), DateTo()};
        if (selection_.single_account != 0) parameters.emplace_back(selection_.single_account);
        auto rows = (Mark(), RunQuery(App(), statement, parameters));
        Mark(), lines_.Resolve(rows->GetColumns());
        Mark(), Amounts().Resolve(rows->GetColumns());
        Data().Attach(std::move(rows));
        sums_.Begin();
        Mark(), At(kPeriodLabel).SetText(TrialPeriodCaption(App(), DateFrom(), DateTo()));
        const CustomCriteria accounts{ResolvesAccounts() ? Criteria().criteria : "", {}};
        Mark(),
            FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), accounts, Tool());
        Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
    });
}

// Ids say nothing to a reader, and criteria that are not used must not be printed.
bool dsrTrialBalanceDetail::ResolvesAccounts() const {
    return selection_.account_ids.empty() && !IsIdList(Criteria().criteria);
}

// The accounts of the host, else those of the filter.
std::string dsrTrialBalanceDetail::AccountList() {
    FilterTool* const tool = Tool();
    if (tool != nullptr) Mark(), tool->SetTables("GLAcct");
    if (!selection_.account_ids.empty()) return selection_.account_ids;
    return Mark(), AccountListOf(Criteria().criteria, tool, ObjectName());
}

std::string dsrTrialBalanceDetail::BuildStatement() {
    std::string statement(kHead);
    statement += LineCondition(selection_.project_ids);
    if (IsSegmentFiltered()) statement += " AND " + SegmentClauseOn("GLDet.ExSegmentId");
    statement += kTail;
    std::string where;
    if (selection_.single_account != 0) where = " WHERE GLAcct.InGLAcctId=?";
    const std::string accounts = AccountList();
    if (!accounts.empty()) AddCondition(where, "GLAcct.InGLAcctId IN (" + accounts + ")");
    if (selection_.hide_inactive)
        AddCondition(where, "(GLAcct.Inactive IS NULL Or GLAcct.Inactive = 0)");
    return statement + where + std::string(kOrder);
}

Currency dsrTrialBalanceDetail::GetAccountBalanceForSpecialAccounts(const TrialAccount& account) {
    return Amounts().BalanceOf(account);
}

void dsrTrialBalanceDetail::ShowBalance(const BalanceControls& controls, const KnownSum& balance) {
    controls.Show(App().GetFormats(), balance, text_);
}

// The unrealized account takes besides what revaluation has changed so far.
dsrTrialBalanceDetail::Forward dsrTrialBalanceDetail::BringForward() try {
    Forward forward;
    Mark(), current_.account = Amounts().Read(CurrentRow());
    current_.key = Amounts().Key(current_.account);
    Mark(), forward.balance = GetAccountBalanceForSpecialAccounts(current_.account);
    if (Amounts().IsUnrealized(current_.account))
        Mark(), forward.unrealized = Amounts().Unrealized();
    sums_.BringForward(forward.balance);
    sums_.BringForward(forward.unrealized);
    return forward;
} catch (...) {
    sums_.LoseForward();
    throw;
}

void dsrTrialBalanceDetail::ShowUnrealized(Currency unrealized) {
    const bool shown = !unrealized.IsZero();
    for (Control* control : {&lblGPUnrealized, &unrealized_.amount, &unrealized_.type}) {
        control->SetVisible(shown);
        control->SetTag(shown ? current_.key : std::string());
    }
    ghAccount.SetHeight(shown ? ghAccount.Design().height : kGroupHeight);
    if (shown) Mark(), ShowBalance(unrealized_, KnownSum(unrealized));
}

void dsrTrialBalanceDetail::ShowAccountKey() {
    for (Control* control : {&txtGLAcctId, &txtDescr, &forward_.amount})
        control->SetTag(current_.key);
}

void dsrTrialBalanceDetail::ghAccount_Format() {
    if (EndOfData()) return;
    current_ = {};
    sums_.BeginAccount();
    forward_.Clear();
    ShowAccountKey();
    ShowUnrealized({});
    const Forward forward = BringForward();
    const bool left_out = !include_zero_balances_ && !IsLine() && forward.balance.IsZero() &&
                          forward.unrealized.IsZero() && Amounts().Difference().IsZero();
    if (left_out) return ghAccount.Skip();
    if (Compares()) SetComparableAccoutGroup(forward);
    ShowAccountKey();
    ShowUnrealized(forward.unrealized);
    Mark(), ShowBalance(forward_, KnownSum(forward.balance));
}

void dsrTrialBalanceDetail::SetComparableAccoutGroup(const Forward& forward) {
    Guard("SetComparableAccoutGroup", [&] {
        AddComparableAccoutGroup();
        AddComparableBalanceForward(forward);
    });
}

void dsrTrialBalanceDetail::AddComparableAccoutGroup() {
    const std::string caption = txtGLAcctId.Text() + ' ' + txtDescr.Text();
    Mark(), BeginComparableGroup(std::to_string(current_.account.id), caption);
}

void dsrTrialBalanceDetail::AddComparableBalanceForward(const Forward& forward) {
    auto& row = NewComparableRow().Add("forward", forward.balance);
    if (!forward.unrealized.IsZero()) row.Add("unrealized", forward.unrealized);
    Mark(), AddComparableRow("forward");
}

// The running balance is left out: it follows from the rest, and one line that changed would be a
// change of all after it.
void dsrTrialBalanceDetail::AddComparableAccountRow(std::optional<Currency> amount) {
    Guard("AddComparableAccountRow", [&] {
        if (!InComparableGroup()) AddComparableAccoutGroup();
        const Row& line = CurrentRow();
        auto& row = NewComparableRow();
        Mark(), row.Add("entry", line.Integer(lines_.At().number));
        row.Add("source", txtSource.Text());
        Mark(), row.Add("date", line.Day(lines_.At().date));
        row.Add("description", txtDetDesc.Text());
        if (IsInForeignCurrency(LineCurrency())) {
            Mark(), row.Add("foreign", line.Amount(lines_.At().foreign));
            Mark(), row.Add("currency", CurrencyCode(LineCurrency()));
        }
        if (amount)
            row.AddOnItsSide(*amount);
        else
            row.Add("amount", KnownSum::Unknown());
        Mark(), AddComparableRow(std::to_string(line.Integer(lines_.At().id)));
    });
}

void dsrTrialBalanceDetail::EndComparableAccount() {
    Guard("SetComparableAccoutGroup", [&] { Mark(), EndComparableGroup(); });
}

std::int32_t dsrTrialBalanceDetail::LineCurrency() const {
    const auto currency = (Mark(), CurrentRow().Integer(lines_.At().currency_id));
    return currency == 0 ? Amounts().HomeCurrencyId() : currency;
}

Currency dsrTrialBalanceDetail::LineAmount(std::int32_t currency_id) {
    const Row& row = CurrentRow();
    const Currency booked = (Mark(), row.Amount(lines_.At().amount));
    if (!Amounts().Revalues(currency_id)) return booked;
    const Currency foreign = (Mark(), row.Amount(lines_.At().foreign));
    return Mark(),
           Amounts().Revalue(
               {.currency_id = currency_id, .booked_rate = {}, .foreign = foreign, .home = booked});
}

// One foreign line that cannot be valued is told; the others of its account would only tell it
// again.
std::optional<Currency> dsrTrialBalanceDetail::AddLine() try {
    const std::int32_t currency_id = LineCurrency();
    if (Amounts().Revalues(currency_id) && !sums_.Balance().Known()) {
        LoseLine();
        return std::nullopt;
    }
    const Currency amount = LineAmount(currency_id);
    sums_.Add(amount);
    return amount;
} catch (...) {
    LoseLine();
    throw;
}

void dsrTrialBalanceDetail::LoseLine() {
    if (IExchangeRates_Reevaluate()) Amounts().LoseDifference();
    sums_.Lose();
    if (Compares()) AddComparableAccountRow(std::nullopt);
}

bool dsrTrialBalanceDetail::IsInForeignCurrency(std::int32_t currency_id) const {
    return DisplayForeignCurrency() && currency_id != Amounts().HomeCurrencyId();
}

const std::string& dsrTrialBalanceDetail::CurrencyCode(std::int32_t currency_id) {
    return GetCurrencyInfo().GetCurrencies().Item(currency_id).code;
}

void dsrTrialBalanceDetail::ShowForeignAmount() {
    const std::int32_t currency_id = LineCurrency();
    if (!IsInForeignCurrency(currency_id)) return;
    const std::string& code = (Mark(), CurrencyCode(currency_id));
    Mark(), lines_.ShowForeignAmount(App().GetFormats(), CurrentRow(), code);
}

void dsrTrialBalanceDetail::ShowKey() {
    const bool unrealized = Amounts().IsUnrealized(current_.account);
    Mark(), lines_.SetTag(unrealized ? current_.key : lines_.DocumentKey(CurrentRow()));
}

// The line is added up before the host is asked for anything but its rate.
void dsrTrialBalanceDetail::Detail_Format() {
    if (EndOfData()) return;
    if (!IsLine()) return Detail.Skip();
    lines_.Clear();
    ShowKey();
    const auto amount = AddLine();
    if (!amount) return;
    if (Compares()) AddComparableAccountRow(*amount);
    Mark(), lines_.ShowAmount(App().GetFormats(), *amount, sums_);
    ShowForeignAmount();
    Mark(), lines_.ShowNumberAndDate(App().GetFormats(), CurrentRow());
}

void dsrTrialBalanceDetail::gfAccount_Format() {
    if (InComparableGroup()) EndComparableAccount();
    lines_.ClearSubtotals();
    const bool all_zero =
        sums_.Account().IsZero() && sums_.Balance().IsZero() && Amounts().Difference().IsZero();
    if (!include_zero_balances_ && all_zero) return gfAccount.Skip();
    Mark(), lines_.ShowSubtotals(App().GetFormats(), sums_);
}

void dsrTrialBalanceDetail::PageHeader_Format() {
    const bool shown = IExchangeRates_Reevaluate();
    Mark(), ShowExchangeRatesNote(App(), GetSurface(), *this, shown);
    ReplacePageHeaderControls(PageHeader);
}

void dsrTrialBalanceDetail::SetAdjControlsPosition(bool visible) {
    Guard("SetAdjControlsPosition", [&] {
        ShowAdjustingLines(
            ReportFooter,
            {"txtDescrAdj", "txtDetDescAdj", "txtDebitAdj", "txtCreditAdj", "txtBalanceAdj",
             "lblBalanceTypeAdj", "linDebitTotalAdj", "linCreditTotalAdj", "linBalanceTotalAdj",
             "lblSubTotalAdj", "txtDebitTotalAdj", "txtCreditTotalAdj", "txtBalanceTotalAdj",
             "lblBalanceTotalTypeAdj"},
            visible);
    });
}

void dsrTrialBalanceDetail::SetAdjControlsValue() {
    Guard("SetAdjControlsValue", [&] {
        const Currency adjustment = (Mark(), sums_.AdjustTotals());
        auto& formats = App().GetFormats();
        Mark(), PutOnItsSide(formats, At("txtDebitAdj"), At("txtCreditAdj"), adjustment, text_);
        Mark(), PutOnItsSide(formats, At("txtDebitTotalAdj"), At("txtCreditTotalAdj"), adjustment,
                             text_);
        Mark(), ShowBalance(adjustment_, KnownSum(adjustment));
        Mark(), ShowBalance(adjustment_total_, KnownSum(adjustment));
        Mark(), At("txtDescrAdj").SetText(PlainText(App(), kAdjustment));
        At("txtDetDescAdj").SetText(SegmentFilterDisplay());
    });
}

void dsrTrialBalanceDetail::ReportFooter_Format() {
    const bool adjusts = IsSegmentFiltered() && sums_.Total().Differ();
    SetAdjControlsPosition(adjusts);
    if (adjusts) SetAdjControlsValue();
    Mark(), lines_.ShowTotals(App().GetFormats(), sums_);
}

}  // namespace varnel::reports
