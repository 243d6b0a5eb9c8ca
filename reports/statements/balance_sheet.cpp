#include "reports/statements/balance_sheet.h"

#include <algorithm>
#include <utility>

#include "framework/exchange_rates_note.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "reports/statements/balance_sheet_layout.h"
#include "reports/statements/statement_rates.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int32_t kAssets = 1;
constexpr std::int32_t kEquity = 3;

constexpr std::int16_t kLiabilitiesAndEquity = 2672;
constexpr std::int16_t kOutOfBalance = 8324;

/// Captions of a section and of its total.
struct SectionTexts {
    std::int32_t type;
    std::int16_t caption;
    std::int16_t total;
};

constexpr SectionTexts kSections[] = {
    {kAssets, 2666, 2667}, {2, 2668, 2669}, {kEquity, 2670, 2671}};

constexpr std::string_view kSelect =
    "SELECT InGLAcctId, GLAcctId, AcctType, GroupType, ExCurrencyId, "
    "Inactive, Descr FROM GLAcct "
    "WHERE AcctType IN (1,2,3)";
constexpr std::string_view kOrder = " ORDER BY AcctType, GLAcctId";

}  // namespace

dsrBalanceSheet::dsrBalanceSheet()
    : StatementReport(BalanceSheetLayout(),
                      {.title_text = 30003, .date_display = DateDisplay::kClosingDate}) {
    SetRowLine({{&At("txtTotal")}, {&At("lblLine")}});
    section_total_ = {{&At("txtTypeTotal")}, {&At("linTypeEnd"), &At("linTypeEnd2")}};
    adjustment_line_ = {{&At("txtProfitLoos")}, {}};
    closing_line_ = {{&At("txtTotalPassCap")}, {}};
    Handle("ReportHeader_Format", &dsrBalanceSheet::ReportHeader_Format);
    Handle("ghAcctType_Format", &dsrBalanceSheet::ghAcctType_Format);
    Handle("GroupFooter1_Format", &dsrBalanceSheet::GroupFooter1_Format);
    Handle("gfAcctType_Format", &dsrBalanceSheet::gfAcctType_Format);
    Handle("ReportFooter_Format", &dsrBalanceSheet::ReportFooter_Format);
}

// A report that could not start knows no total.
void dsrBalanceSheet::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        for (Sides* sides : {&adjustment_, &difference_, &liabilities_and_equity_}) sides->Lose();
        Levels().Lose();
        out_of_balance_ = false;
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        scope_ = Scope(kOpenStart, DateTo());
        Mark(), home_currency_id_ = GetCurrencyInfo().CieHomeCurrencyId();
        StartRows(BuildStatement());
        Mark(), currency_id_ = Data().Rows()->GetColumns().At("ExCurrencyId");
        control_accounts_.reset();
        for (Sides* sides : {&adjustment_, &difference_, &liabilities_and_equity_}) *sides = {};
        ShowFilterAndNote(adjustments_from);
    });
}

std::string dsrBalanceSheet::BuildStatement() {
    if (FilterTool* const tool = Tool()) Mark(), tool->SetTables("GLAcct");
    const CustomCriteria custom = Criteria();
    std::string statement(kSelect);
    if (custom.criteria.empty()) return statement.append(kOrder);
    return statement + " AND (" + custom.criteria + ")" + std::string(kOrder);
}

bool dsrBalanceSheet::IsCreditType(std::int32_t account_type) const {
    return account_type != kAssets;
}

Sides dsrBalanceSheet::AmountsOf(const StatementRow& row) try {
    const Currency booked = StatementBalance(*row.account_id, scope_);
    account_adjustment_ = ExchangeAdjustment(*row.account_id, booked);
    return {booked + account_adjustment_};
} catch (...) {
    adjustment_.Lose();
    throw;
}

// What stands on a control account of a foreign currency gains, debit positive; nothing on others.
Currency dsrBalanceSheet::ExchangeAdjustment(std::int32_t account_id, Currency booked) {
    if (!IExchangeRates_Reevaluate()) return {};
    const std::int32_t own_currency = CurrentRow().Integer(currency_id_);
    if (own_currency == 0 || own_currency == home_currency_id_) return {};
    auto& company = CurrentCompany();
    if (!control_accounts_) control_accounts_.emplace(company);
    if (!control_accounts_->Holds(account_id, own_currency)) return {};
    const Currency foreign = company.Balances().AccountBalance(account_id, scope_, true);
    const LedgerBalance balance{
        .currency_id = own_currency, .booked_rate = {}, .foreign = foreign, .home = booked};
    auto& info = company.GetCurrencyInfo();
    return info.Round(EvaluateAtKeyedRate(info, *this, balance).gain, 2);
}

void dsrBalanceSheet::ReportHeader_Format() {
    Mark(), At(kPeriodLabel).SetText(ClosingDateCaption(App(), DateTo()));
    Mark(), ShowRatesLine(GetSurface(), StatementRatesText(App(), *this));
    Mark(), ReplacePageHeaderControls(SectionAt("PageHeader"));
}

void dsrBalanceSheet::ghAcctType_Format() {
    lblAcctType.Clear();
    if (!BeginSection()) return;
    for (const auto& section : kSections)
        if (section.type == SectionType())
            Mark(), lblAcctType.SetText(PlainText(App(), section.caption));
}

void dsrBalanceSheet::GroupFooter1_Format() {
    adjustment_line_.Clear();
    if (SectionType() != kEquity || !IExchangeRates_Reevaluate()) return GroupFooter1.Skip();
    Levels().Add(adjustment_);
    if (adjustment_.AreZero()) return GroupFooter1.Skip();
    Mark(), Show(adjustment_line_, adjustment_);
}

// A section that could not be told may belong to either side.
void dsrBalanceSheet::gfAcctType_Format() {
    const Sides total = Levels().TakeSection();
    lblTypeCap.Clear();
    section_total_.Clear();
    section_total_.SetRulesVisible(false);
    try {
        Mark(), CloseSection(total);
    } catch (...) {
        difference_.Lose();
        liabilities_and_equity_.Lose();
        throw;
    }
    Mark(), Show(section_total_, total);
}

// Which section it is is told by the caption that stands over it.
void dsrBalanceSheet::CloseSection(const Sides& total) {
    const auto* const section = std::ranges::find_if(kSections, [this](const auto& texts) {
        return lblAcctType.Text() == PlainText(App(), texts.caption);
    });
    if (section == std::end(kSections))
        Raise(error_number::kOther, "Varnel.dsrBalanceSheet",
              "The section \"" + lblAcctType.Text() + "\" is not one of a balance sheet");
    const bool first = section->type == kAssets;
    if (first) {
        difference_ = total;
    } else {
        liabilities_and_equity_.Add(total);
        difference_.Subtract(total);
    }
    if (section->type == kEquity)
        out_of_balance_ = IsSegmentFiltered() && difference_.AreKnown() && !difference_.AreZero();
    section_total_.SetRulesVisible(first);
    lblTypeCap.SetText(PlainText(App(), section->total));
}

void dsrBalanceSheet::ReportFooter_Format() {
    closing_line_.Clear();
    lblGTot.Clear();
    const Sides total = std::exchange(liabilities_and_equity_, {});
    const bool out_of_balance = std::exchange(out_of_balance_, false);
    Mark(),
        lblGTot.SetText(PlainText(App(), out_of_balance ? kOutOfBalance : kLiabilitiesAndEquity));
    Mark(), Show(closing_line_, total);
}

}  // namespace varnel::reports
