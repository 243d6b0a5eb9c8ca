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

constexpr std::string_view kColumns =
    "InGLAcctId, GLAcctId, AcctType, GroupType, ExCurrencyId, Inactive, Descr";
constexpr std::string_view kAccounts = " FROM GLAcct WHERE AcctType IN (1,2,3)";
constexpr std::string_view kOrder = " ORDER BY AcctType, GLAcctId";
constexpr const char* kWithoutSegment = "(GLDet.ExSegmentId IS NULL)";
constexpr int kCents = 2;

}  // namespace

dsrBalanceSheet::dsrBalanceSheet() : dsrBalanceSheet(BalanceSheetLayout(), 30003, kColumns) {
    SetLines({.row = StatementLine({.amounts = {&At("txtTotal")}, .rules = {&At("lblLine")}}),
              .section_total = StatementLine({.amounts = {&At("txtTypeTotal")}}),
              .adjustment = StatementLine({.amounts = {&At("txtProfitLoos")}}),
              .closing = StatementLine({.amounts = {&At("txtTotalPassCap")}}),
              .first_section_rules = StatementLine(
                  {.amounts = {}, .rules = {&At("linTypeEnd"), &At("linTypeEnd2")}})});
}

dsrBalanceSheet::dsrBalanceSheet(const Layout& layout, std::int16_t title_text,
                                 std::string_view columns)
    : StatementReport(layout,
                      {.title_text = title_text, .date_display = DateDisplay::kClosingDate}),
      selected_columns_(columns) {
    Handle("ReportHeader_Format", &dsrBalanceSheet::ReportHeader_Format);
    Handle("ghAcctType_Format", &dsrBalanceSheet::ghAcctType_Format);
    Handle("GroupFooter1_Format", &dsrBalanceSheet::GroupFooter1_Format);
    Handle("gfAcctType_Format", &dsrBalanceSheet::gfAcctType_Format);
    Handle("ReportFooter_Format", &dsrBalanceSheet::ReportFooter_Format);
}

void dsrBalanceSheet::SetLines(Lines lines) {
    lines_ = std::move(lines);
    scopes_.resize(lines_.row.AmountCount());
    SetRowLine(lines_.row);
}

void dsrBalanceSheet::ActiveReport_Terminate() {
    control_accounts_.reset();
    StatementReport::ActiveReport_Terminate();
}

// A report that could not start knows no total.
void dsrBalanceSheet::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        for (Sides* sides : {&adjustment_, &difference_, &liabilities_and_equity_}) sides->Lose();
        Levels().Lose();
        out_of_balance_ = false;
        scopes_.assign(lines_.row.AmountCount(), std::nullopt);
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        scopes_.clear();
        for (const auto& date : ClosingDates())
            scopes_.push_back(date ? std::optional(Scope(kOpenStart, *date)) : std::nullopt);
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
    std::string statement = "SELECT ";
    statement.append(selected_columns_).append(kAccounts);
    if (!custom.criteria.empty()) statement += " AND (" + custom.criteria + ")";
    return statement.append(kOrder);
}

bool dsrBalanceSheet::IsCreditType(std::int32_t account_type) const {
    return account_type != kAssets;
}

std::vector<std::optional<Date>> dsrBalanceSheet::ClosingDates() { return {DateTo()}; }

// What a comparison cannot be told of leaves the amounts of the closing date alone.
Sides dsrBalanceSheet::AmountsOf(const StatementRow& row) {
    Sides amounts, gains;
    for (std::size_t side = 0; side < scopes_.size(); ++side) {
        const auto put = [&, side] { PutAmount(side, *row.account_id, amounts, gains); };
        amounts.Put(side, KnownSum::Unknown());
        gains.Put(side, KnownSum::Unknown());
        if (side == 0)
            Mark(), put();
        else
            Guard("AmountsOf", put);
    }
    adjustment_.Add(gains);
    return amounts;
}

void dsrBalanceSheet::PutAmount(std::size_t side, std::int32_t account_id, Sides& amounts,
                                Sides& gains) {
    const auto& scope = scopes_[side];
    if (!scope) return;
    const Currency booked = (Mark(), StatementBalance(account_id, *scope));
    const Currency gain = (Mark(), ExchangeAdjustment(account_id, *scope, booked));
    amounts.Put(side, KnownSum(booked + gain));
    gains.Put(side, KnownSum(gain));
}

void dsrBalanceSheet::LoseAmounts() {
    StatementReport::LoseAmounts();
    adjustment_.Lose();
}

// What stands on a control account of a foreign currency gains, debit positive; nothing on others.
Currency dsrBalanceSheet::ExchangeAdjustment(std::int32_t account_id, const BalanceScope& scope,
                                             Currency booked) {
    if (!IExchangeRates_Reevaluate()) return {};
    const std::int32_t own_currency = CurrentRow().Integer(currency_id_);
    if (own_currency == 0 || own_currency == home_currency_id_) return {};
    auto& company = CurrentCompany();
    if (!control_accounts_) control_accounts_.emplace(company);
    if (!control_accounts_->Holds(account_id, own_currency)) return {};
    const Currency foreign = company.Balances().AccountBalance(account_id, scope, true);
    if (foreign.IsZero() && booked.IsZero()) return {};  // Worth nothing at any rate.
    const LedgerBalance balance{
        .currency_id = own_currency, .booked_rate = {}, .foreign = foreign, .home = booked};
    auto& info = company.GetCurrencyInfo();
    return info.Round(EvaluateAtKeyedRate(info, *this, balance).gain, kCents);
}

void dsrBalanceSheet::ReportHeader_Format() {
    Mark(), At(kPeriodLabel).SetText(ClosingDateCaption(App(), DateTo()));
    SetColumnCaptions();
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
    lines_.adjustment.Clear();
    if (SectionType() != kEquity || !IExchangeRates_Reevaluate()) return GroupFooter1.Skip();
    Levels().Add(adjustment_);
    if (adjustment_.AreZero()) return GroupFooter1.Skip();
    Mark(), Show(lines_.adjustment, adjustment_);
}

// A section that could not be told may belong to either side.
void dsrBalanceSheet::gfAcctType_Format() {
    const Sides total = Levels().TakeSection();
    lblTypeCap.Clear();
    lines_.section_total.Clear();
    lines_.first_section_rules.SetRulesVisible(false);
    try {
        Mark(), CloseSection(total);
    } catch (...) {
        difference_.Lose();
        liabilities_and_equity_.Lose();
        throw;
    }
    Mark(), Show(lines_.section_total, total);
}

// Which section it is is told by the caption that stands over it.
void dsrBalanceSheet::CloseSection(const Sides& total) {
    const auto* const section = std::ranges::find_if(kSections, [this](const auto& texts) {
        return lblAcctType.Text() == PlainText(App(), texts.caption);
    });
    if (section == std::end(kSections))
        Raise(error_number::kOther, "Varnel." + std::string(ObjectName()),
              "The section \"" + lblAcctType.Text() + "\" is not one of a balance sheet");
    const bool first = section->type == kAssets;
    if (first) {
        difference_ = total;
    } else {
        liabilities_and_equity_.Add(total);
        difference_.Subtract(total);
    }
    if (section->type == kEquity)
        out_of_balance_ = IsSegmentFiltered() && difference_[0].Known() && !difference_[0].IsZero();
    lines_.first_section_rules.SetRulesVisible(first);
    lblTypeCap.SetText(PlainText(App(), section->total));
}

void dsrBalanceSheet::ReportFooter_Format() {
    lines_.closing.Clear();
    lblGTot.Clear();
    InitBalanceSheetAjust();
    const bool out_of_balance = std::exchange(out_of_balance_, false);
    const Sides total = std::exchange(liabilities_and_equity_, {});
    Mark(),
        lblGTot.SetText(PlainText(App(), out_of_balance ? kOutOfBalance : kLiabilitiesAndEquity));
    Mark(), Show(lines_.closing, total);
}

std::string dsrBalanceSheet::GetInverseSegmentFilter() const {
    return InverseSegmentClauseOn("GLDet.ExSegmentId");
}

// Minus the balance of all that the filter leaves out. Lines without a segment are not in the
// inverse of a list, so they are asked for besides.
KnownSum dsrBalanceSheet::OtherSegments(const std::optional<BalanceScope>& scope) {
    if (!scope) return KnownSum::Unknown();
    auto& balances = CurrentCompany().Balances();
    const auto balance = [&](const std::string& clause) {
        BalanceScope outside = *scope;
        outside.segment_clause = clause;
        return balances.AccountBalance(kEveryAccount, outside, false);
    };
    Currency outside = balance(GetInverseSegmentFilter());
    if (!TakesLinesWithoutSegment()) outside += balance(kWithoutSegment);
    return KnownSum(GetCurrencyInfo().Round(-outside, kCents));
}

// Without its amounts there is nothing to adjust by: the parts stay out.
void dsrBalanceSheet::InitBalanceSheetAjust() {
    Control& place = At("dsrBalanceSheetAjust");
    place.SetSubReport(nullptr);
    Guard("InitBalanceSheetAjust", [&] {
        if (GetInverseSegmentFilter().empty()) return;
        const auto [left, top, width, height] = At("txtDescr").Design().box;
        auto adjusted = std::make_shared<dsrBalanceSheetAjust>();
        adjusted->Application(AppRef());
        adjusted->Style(AdjustmentStyle());
        adjusted->DescrLeft(left);
        adjusted->DescrWidth(lblGTot.Place().width);
        adjusted->AmountColumns(lines_.row.Columns());
        adjusted->LiabilitiesAndEquity(liabilities_and_equity_);
        Mark(), adjusted->AdjustingAmount(OtherSegments(scopes_.front()));
        if (scopes_.size() > 1)
            Mark(), adjusted->AdjustingAmountComp(OtherSegments(scopes_.back()));
        place.SetSubReport(std::move(adjusted));
    });
}

}  // namespace varnel::reports
