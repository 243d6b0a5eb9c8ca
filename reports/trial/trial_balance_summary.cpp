#include "reports/trial/trial_balance_summary.h"

#include "framework/exchange_rates_note.h"
#include "framework/filter_sort_subreport.h"
#include "framework/gl_config.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "reports/trial/adjusting_lines.h"
#include "reports/trial/trial_balance_summary_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kAdjustment = 8571;
constexpr Twips kGap = 60;

constexpr std::string_view kSelect =
    "SELECT GLAcct.InGLAcctId, GLAcct.GLAcctId, GLAcct.AcctType, "
    "GLAcct.ExCurrencyId, GLAcct.Descr, GLAcct.Inactive, "
    "WorldCurrency.CurrencyCode, WorldCurrency.Descr as WorldCurrencyDescr "
    "FROM GLAcct LEFT JOIN WorldCurrency "
    "ON WorldCurrency.InCurrencyId = GLAcct.ExCurrencyId";

}  // namespace

dsrTrialBalanceSummary::dsrTrialBalanceSummary()
    : TrialReport(TrialBalanceSummaryLayout(), {.title_text = 30001,
                                                .date_display = DateDisplay::kFromTo,
                                                .by_account_number = true,
                                                .by_fiscal_year = true}),
      ComparableReport(Members(), ObjectName()),
      ExcelAddInExport(Members()) {
    Handle("PageHeader_Format", &dsrTrialBalanceSummary::PageHeader_Format);
    Handle("Detail_Format", &dsrTrialBalanceSummary::Detail_Format);
    Handle("ReportFooter_Format", &dsrTrialBalanceSummary::ReportFooter_Format);
}

void dsrTrialBalanceSummary::IReportConfig_ShowConfigurationScreen() {
    Guard("IReportConfig_ShowConfigurationScreen", [&] {
        Mark(), include_zero_balances_ = AskIncludeZeroBalance(App(), include_zero_balances_);
    });
}

// A report that could not start knows no total.
void dsrTrialBalanceSummary::ActiveReport_ReportStart() {
    Guard("IComparableReportActions", [&] { Mark(), StartComparing(App()); });
    Guard("ActiveReport_ReportStart", [&] {
        totals_.Lose();
        foreign_used_ = false;
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        Mark(), foreign_used_ = GetCurrencyInfo().CieIsForeignCurrencyUsed();
        PlaceColumns();
        const std::string statement = BuildStatement();
        StartAmounts(BalancePeriod());
        auto rows = (Mark(), RunQuery(App(), statement, {}));
        Mark(), ResolveColumns(rows->GetColumns());
        Data().Attach(std::move(rows));
        totals_ = {};
        Mark(), At(kPeriodLabel).SetText(TrialPeriodCaption(App(), DateFrom(), DateTo()));
        const auto custom = Criteria();
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), custom, Tool());
        Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
    });
}

std::string dsrTrialBalanceSummary::BuildStatement() {
    if (FilterTool* const tool = Tool()) Mark(), tool->SetTables("GLAcct");
    const CustomCriteria custom = Criteria();
    std::string statement(kSelect);
    if (!custom.criteria.empty()) statement += " WHERE (" + custom.criteria + ") ";
    return statement + custom.OrderClause(" ORDER BY ", " ORDER BY GLAcct.GLAcctId");
}

AccountAmounts::Period dsrTrialBalanceSummary::BalancePeriod() {
    return {.year_start = (Mark(), StartOfYearOrPeriod()),
            .to = DateTo(),
            .segment_clause = SegmentClauseOn("GLDet.ExSegmentId"),
            .project_ids = {}};
}

void dsrTrialBalanceSummary::PlaceColumns() {
    const bool foreign = DisplayForeignCurrency();
    At("lblCurrency").SetVisible(foreign && foreign_used_);
    Control& code_caption = At("lblCodeCap");
    txtAcctId.SetVisible(UseAccountNumbers());
    code_caption.SetVisible(UseAccountNumbers());
    const Twips left = UseAccountNumbers() ? txtDescr.Place().left : txtAcctId.Place().left;
    const Twips right = (foreign ? txtCurrency : txtDebit).Place().left - kGap;
    for (Control* control : {&txtDescr, &At("lblDescrCap")}) {
        control->SetLeft(left);
        control->SetWidth(right - left);
    }
}

void dsrTrialBalanceSummary::ResolveColumns(const Columns& columns) {
    Amounts().Resolve(columns);
    currency_code_ = columns.At("CurrencyCode");
    inactive_ = columns.At("Inactive");
}

void dsrTrialBalanceSummary::ShowKey(const std::string& key) {
    for (Control* control : {&txtDebit, &txtCredit, &txtAcctId, &txtDescr}) control->SetTag(key);
}

bool dsrTrialBalanceSummary::IsInForeignCurrency(const TrialAccount& account) const {
    return DisplayForeignCurrency() && account.currency_id != Amounts().HomeCurrencyId() &&
           !Amounts().IsRetainedEarnings(account);
}

void dsrTrialBalanceSummary::ShowForeignBalance(const TrialAccount& account) {
    if (!IsInForeignCurrency(account)) return;
    const Currency foreign = (Mark(), Amounts().ForeignBalance(account));
    if (foreign.IsZero()) return;
    text_.clear();
    Mark(), App().GetFormats().AppendAmount(foreign, text_);
    text_ += ' ';
    Mark(), CurrentRow().AppendText(currency_code_, text_);
    txtCurrency.SetValue(foreign, text_);
    txtCurrency.SetVisible(true);
    txtCurrencyCode.SetVisible(true);
}

bool dsrTrialBalanceSummary::IsLeftOut(Currency amount) const {
    return amount.IsZero() && (!include_zero_balances_ || CurrentRow().Truth(inactive_));
}

void dsrTrialBalanceSummary::IComparableReportActions(const TrialAccount& account,
                                                      Currency amount) {
    Guard("IComparableReportActions", [&] {
        auto& row = NewComparableRow();
        row.Add("account", txtAcctId.Text()).Add("description", txtDescr.Text());
        if (IsInForeignCurrency(account)) {
            const Currency foreign = (Mark(), Amounts().ForeignBalance(account));
            if (!foreign.IsZero())
                row.Add("foreign", foreign).Add("currency", txtCurrencyCode.Text());
        }
        row.AddOnItsSide(amount);
        Mark(), AddComparableRow(std::to_string(account.id));
    });
}

// The amount and its total come before anything is formatted.
void dsrTrialBalanceSummary::Detail_Format() {
    if (EndOfData()) return;
    txtDebit.Clear();
    txtCredit.Clear();
    txtCurrency.SetVisible(false);
    txtCurrencyCode.SetVisible(false);
    ShowKey({});
    TrialAccount account;
    Currency amount;
    try {
        Mark(), account = Amounts().Read(CurrentRow());
        ShowKey(Amounts().Key(account));
        Mark(), amount = Amounts().Amount(account);
        totals_.Add(amount);
    } catch (...) {
        totals_.Lose();
        throw;
    }
    if (IsLeftOut(amount)) return Detail.Skip();
    if (Compares()) IComparableReportActions(account, amount);
    Mark(), PutOnItsSide(App().GetFormats(), txtDebit, txtCredit, amount, text_);
    ShowForeignBalance(account);
}

void dsrTrialBalanceSummary::PageHeader_Format() {
    const bool shown = IExchangeRates_Reevaluate();
    Mark(), ShowExchangeRatesNote(App(), GetSurface(), *this, shown);
    ReplacePageHeaderControls(PageHeader);
}

void dsrTrialBalanceSummary::SeAdjControlsPosition(bool visible) {
    Guard("SeAdjControlsPosition", [&] {
        ShowAdjustingLines(ReportFooter, {"txtDescrAdj", "txtDebitAdj", "txtCreditAdj"}, visible);
    });
}

void dsrTrialBalanceSummary::SetAdjControlsValue() {
    Guard("SetAdjControlsValue", [&] {
        const Currency adjustment = (Mark(), Adjust(totals_));
        Mark(), PutOnItsSide(App().GetFormats(), txtDebitAdj, txtCreditAdj, adjustment, text_);
        Mark(), txtDescrAdj.SetText(PlainText(App(), kAdjustment));
    });
}

void dsrTrialBalanceSummary::ReportFooter_Format() {
    const bool adjusts = IsSegmentFiltered() && totals_.Differ();
    SeAdjControlsPosition(adjusts);
    if (adjusts) SetAdjControlsValue();
    auto& formats = App().GetFormats();
    Mark(), PutSum(formats, txtDebitGrandTotal, totals_.debit, text_);
    Mark(), PutSum(formats, txtCreditGrandTotal, totals_.credit, text_);
}

}  // namespace varnel::reports
