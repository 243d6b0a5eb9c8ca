#include "tests/support/memory_company.h"

#include <algorithm>

#include "host/control_accounts.h"
#include "host/decimal.h"

namespace varnel::test {

std::string MemoryCompany::Name() {
    calls_.Note("Company.Name");
    return name;
}

std::string MemoryCompany::GetSetting(std::string_view setting, std::string_view default_text,
                                      const ObjectRef&, std::int32_t) {
    calls_.Note("GetSetting");
    const auto found = settings.find(setting);
    return found == settings.end() ? std::string(default_text) : found->second;
}

std::int32_t MemoryCompany::GetGLAccountParam(std::string_view param, std::string_view) {
    calls_.Note("GetGLAccountParam");
    const auto found = account_params.find(param);
    return found == account_params.end() ? 0 : found->second;
}

Date MemoryCompany::FiscalYearStart(Date date) {
    calls_.Note("FiscalYearStart");
    Date start = Date::FromYearMonthDay(date.Civil().year, 1, 1);
    for (const Date other : fiscal_year_starts)
        if (other <= date) start = other;
    return start;
}

bool MemoryCompany::PeriodTest(Date from, Date to) { return from < FiscalYearStart(to); }

std::optional<Date> MemoryCompany::ItemAdjustmentStart() {
    calls_.Note("ItemAdjustmentStart");
    return item_adjustment_start;
}

bool MemoryCompany::UsesProjects() {
    calls_.Note("UsesProjects");
    return uses_projects;
}

CurrencyInfo& MemoryCompany::GetCurrencyInfo() {
    calls_.Note("GetCurrencyInfo");
    return currency_info;
}

BalanceService& MemoryCompany::Balances() {
    calls_.Note("Balances");
    return *this;
}

BudgetService& MemoryCompany::Budgets() {
    calls_.Note("Budgets");
    return *this;
}

AccountTypes& MemoryCompany::GetAccountTypes() {
    calls_.Note("GetAccountTypes");
    return *this;
}

ChartOfAccounts& MemoryCompany::Accounts() {
    calls_.Note("Accounts");
    return *this;
}

ReconciliationHistory& MemoryCompany::Reconciliations() {
    calls_.Note("Reconciliations");
    return *this;
}

bool MemoryCompany::Takes(const BalanceScope& scope, const LedgerLine& line) const {
    if (line.date < scope.from || line.date > scope.to) return false;
    const std::string project = "," + std::to_string(line.project_id) + ",";
    if (!scope.project_ids.empty() &&
        ("," + scope.project_ids + ",").find(project) == std::string::npos)
        return false;
    return scope.segment_clause.empty() || !in_segments || in_segments(line, scope.segment_clause);
}

Currency MemoryCompany::AccountBalance(std::int32_t account_id, const BalanceScope& scope,
                                       bool in_foreign_currency) {
    calls_.Note("AccountBalance");
    Currency balance;
    for (const auto& line : ledger)
        if ((account_id == -1 || line.account_id == account_id) && Takes(scope, line))
            balance += in_foreign_currency ? line.foreign : line.home;
    return balance;
}

bool MemoryCompany::IsIncomeStatement(std::int32_t account_id) {
    return type_classes[account_types[account_id]] == kIncomeStatementClass;
}

Currency MemoryCompany::EarningsBefore(Date date, const BalanceScope& scope) {
    calls_.Note("EarningsBefore");
    const BalanceScope before{kOpenStart, date - 1, scope.segment_clause, scope.project_ids};
    Currency earnings;
    for (const auto& line : ledger)
        if (IsIncomeStatement(line.account_id) && Takes(before, line)) earnings += line.home;
    return earnings;
}

Currency MemoryCompany::StatementBalance(std::int32_t account_id, const BalanceScope& scope,
                                         IExchangeRates& rates) {
    calls_.Note("StatementBalance");
    const Date year_start = FiscalYearStart(scope.to);
    Currency balance = AccountBalance(account_id, scope, false) + GainOf(account_id, scope, rates);
    if (account_id == GetGLAccountParam("GLRtainEarn", kCompanySection))
        balance += EarningsBefore(year_start, scope);
    if (account_id != GetGLAccountParam("GLCurntEarn", kCompanySection)) return balance;
    const BalanceScope year{year_start, scope.to, scope.segment_clause, scope.project_ids};
    for (const auto& line : ledger)
        if (IsIncomeStatement(line.account_id) && Takes(year, line)) balance += line.home;
    return balance - GainOfBalanceSheet(scope, rates);
}

Currency MemoryCompany::GainOf(std::int32_t account_id, const BalanceScope& scope,
                               IExchangeRates& rates) {
    const auto own = account_currencies.find(account_id);
    if (own == account_currencies.end() || own->second == currency_info.home_id) return {};
    if (!rates.IExchangeRates_Reevaluate() || !currency_info.CieIsForeignCurrencyUsed()) return {};
    if (ControlAccounts(*this).Holds(account_id, own->second)) return {};
    const Currency home = AccountBalance(account_id, scope, false);
    const Currency foreign = AccountBalance(account_id, scope, true);
    if (home.IsZero() && foreign.IsZero()) return {};
    return currency_info.EvaluateValueWithExchangeRate({}, own->second, foreign, rates) - home;
}

Currency MemoryCompany::GainOfBalanceSheet(const BalanceScope& scope, IExchangeRates& rates) {
    Currency gain;
    for (const auto& [account_id, type] : account_types)
        if (!IsIncomeStatement(account_id)) gain += GainOf(account_id, scope, rates);
    return gain;
}

void MemoryCompany::BeginRun() { calls_.Note("BeginRun"); }

Currency MemoryCompany::GetAcctBudgetRange(std::int32_t account_id, Date from, Date to) {
    calls_.Note("GetAcctBudgetRange");
    constexpr std::int64_t kCent = Currency::kScale / 100;
    Int128 total = 0, divisor = 1;  // A fraction; the few budgets of a test fit.
    for (const auto& budget : budgets) {
        if (budget.account_id != account_id) continue;
        const auto days = std::min(to, budget.to) - std::max(from, budget.from) + 1;
        if (days <= 0) continue;
        const auto all_days = budget.to - budget.from + 1;
        total = total * all_days + Int128{budget.amount.Scaled()} * days * divisor;
        divisor *= all_days;
    }
    const Int128 cents = decimal::DivideRounded(total, divisor * kCent);
    return Currency::FromScaled(static_cast<std::int64_t>(cents * kCent));
}

std::int32_t MemoryCompany::Class(std::int32_t account_type) {
    calls_.Note("AccountTypes.Class");
    const auto found = type_classes.find(account_type);
    if (found != type_classes.end()) return found->second;
    throw Error(error_number::kInvalidArgument, "MemoryHost",
                "There is no account type " + std::to_string(account_type));
}

std::string MemoryCompany::Caption(std::int32_t account_type, std::int32_t) {
    calls_.Note("AccountTypes.Caption");
    return "Section " + std::to_string(account_type);
}

std::string MemoryCompany::AdditionalIncomeTypes() {
    calls_.Note("AdditionalIncomeTypes");
    return additional_income_types;
}

std::int32_t MemoryCompany::CurrencyOf(std::int32_t account_id) {
    calls_.Note("CurrencyOf");
    if (account_types.count(account_id) == 0)
        throw Error(error_number::kInvalidArgument, "MemoryHost",
                    "There is no account " + std::to_string(account_id));
    const auto found = account_currencies.find(account_id);
    return found == account_currencies.end() ? currency_info.home_id : found->second;
}

std::string MemoryCompany::OtherRevaluedAccountIds() {
    calls_.Note("OtherRevaluedAccountIds");
    return other_revalued_account_ids;
}

std::shared_ptr<Recordset> MemoryCompany::OpenRecords() {
    calls_.Note("OpenRecords");
    return database_.Rows("SELECT * FROM BankConcilHistory");
}

}  // namespace varnel::test
