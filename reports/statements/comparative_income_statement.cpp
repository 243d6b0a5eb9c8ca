#include "reports/statements/comparative_income_statement.h"

#include "framework/period_caption.h"
#include "reports/statements/comparative_income_statement_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kTitle = 30004;
constexpr std::int16_t kBudgetTitle = 30005;
constexpr std::size_t kComparisonSide = 2;

constexpr Member<dsrComparativeIncomeStatement> kMembers[] = {
    {"IsBudgetComparative",
     [](dsrComparativeIncomeStatement& r) -> Variant { return r.IsBudgetComparative(); },
     [](dsrComparativeIncomeStatement& r, const Variant& v) { r.IsBudgetComparative(v.ToBool()); }},
    {"NoHeaders", [](dsrComparativeIncomeStatement& r) -> Variant { return r.IReport_NoHeaders(); },
     [](dsrComparativeIncomeStatement& r, const Variant& v) { r.NoHeaders(v.ToBool()); }},
    {"CumulativeDateFrom",
     [](dsrComparativeIncomeStatement& r) -> Variant { return r.GetSelection().cumulative_from; },
     [](dsrComparativeIncomeStatement& r, const Variant& v) {
         r.GetSelection().cumulative_from = v.ToDate();
     }},
    {"CumulativeDateTo",
     [](dsrComparativeIncomeStatement& r) -> Variant { return r.GetSelection().cumulative_to; },
     [](dsrComparativeIncomeStatement& r, const Variant& v) {
         r.GetSelection().cumulative_to = v.ToDate();
     }},
};

}  // namespace

dsrComparativeIncomeStatement::dsrComparativeIncomeStatement()
    : IncomeStatementReport(ComparativeIncomeStatementLayout(), kTitle, ", ExCurrencyId") {
    Members().Add<dsrComparativeIncomeStatement>(*this, kMembers);
    SetLines(
        {.row =
             StatementLine({.amounts = {&At("txtTotal"), &At("txtTotalCul"), &At("txtTotalComp")},
                            .rules = {&At("linTotal"), &At("linTotalCul"), &At("linTotalComp"),
                                      &At("linTotalDoll")},
                            .variance = &At("txtTotalDoll"),
                            .percent = &At("lblTotalDiff")}),
         .section_total = StatementLine(
             {.amounts = {&At("txtTypeTotal"), &At("txtTypeTotalCul"), &At("txtTypeTotalComp")},
              .variance = &At("txtTypeTotalDoll"),
              .percent = &At("lblTypeTotalDiff")}),
         .result = StatementLine({.amounts = {&At("txtTotalPassCap"), &At("txtTotalPassCapCul"),
                                              &At("txtTotalPassCapComp")},
                                  .rules = {&At("linResult"), &At("linResultCul"),
                                            &At("linResultComp"), &At("linResultDoll")},
                                  .variance = &At("txtTotalPassCapDoll"),
                                  .percent = &At("lblTotalPassCapDiff")}),
         .final_rules =
             StatementLine({.amounts = {},
                            .rules = {&At("linFinal"), &At("linFinalCul"), &At("linFinalComp"),
                                      &At("linFinalDoll"), &At("linFinal2"), &At("linFinalCul2"),
                                      &At("linFinalComp2"), &At("linFinalDoll2")}})});
}

void dsrComparativeIncomeStatement::IsBudgetComparative(bool is_budget) {
    is_budget_ = is_budget;
    SetTitleText(is_budget ? kBudgetTitle : kTitle);
}

void dsrComparativeIncomeStatement::SetPeriods() {
    IncomeStatementReport::SetPeriods();
    comparison_.reset();
    if (is_budget_)
        comparison_ = ReportPeriod();
    else
        SetComparativeDateFromDateTo();
}

void dsrComparativeIncomeStatement::SetComparativeDateFromDateTo() {
    Guard("SetComparativeDateFromDateTo", [&] {
        const auto [from, to] = PeriodOfLastYear(App(), {DateFrom(), DateTo()});
        BalanceScope comparison = ReportPeriod();
        comparison.from = from;
        comparison.to = to;
        comparison_ = comparison;
    });
}

void dsrComparativeIncomeStatement::SetPageHeader() {
    IncomeStatementReport::SetPageHeader();
    AlignPageHeaderControls();
    Control& dates = At("lblDatePeriodComp");
    dates.Clear();
    if (comparison_)
        Mark(), dates.SetText(StatementPeriodCaption(App(), comparison_->from, comparison_->to));
}

// A host may have moved the columns.
void dsrComparativeIncomeStatement::AlignPageHeaderControls() {
    Guard("AlignPageHeaderControls", [&] {
        constexpr std::pair<const char*, const char*> kCaptionsOf[] = {
            {"lblPeriod", "txtTotal"},       {"lblDatePeriod", "txtTotal"},
            {"lblCumul", "txtTotalCul"},     {"lblDateCul", "txtTotalCul"},
            {"lblComp", "txtTotalComp"},     {"lblDatePeriodComp", "txtTotalComp"},
            {"lblVariance", "txtTotalDoll"}, {"lblVariancePercent", "lblTotalDiff"}};
        for (const auto& [caption, column] : kCaptionsOf) {
            At(caption).SetLeft(At(column).Place().left);
            At(caption).SetWidth(At(column).Place().width);
        }
    });
}

// The budget has no lines to go to.
std::string dsrComparativeIncomeStatement::ComparisonKey(std::int32_t account_id) const {
    return is_budget_ ? std::string() : IncomeStatementReport::ComparisonKey(account_id);
}

// A comparison that cannot be worked out leaves the amounts of the period alone.
Sides dsrComparativeIncomeStatement::AmountsOf(const StatementRow& row) {
    Sides amounts = IncomeStatementReport::AmountsOf(row);
    KnownSum comparison = KnownSum::Unknown();
    if (comparison_)
        Guard("AmountsOf", [&] { Mark(), comparison = KnownSum(Comparison(*row.account_id)); });
    amounts.Put(kComparisonSide, comparison);
    return amounts;
}

// Never revalued on the unrealized account.
Currency dsrComparativeIncomeStatement::Comparison(std::int32_t account_id) {
    if (!is_budget_) return StatementBalance(account_id, *comparison_);
    return CurrentCompany().Budgets().GetAcctBudgetRange(account_id, comparison_->from,
                                                         comparison_->to);
}

}  // namespace varnel::reports
