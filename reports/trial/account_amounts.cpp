#include "reports/trial/account_amounts.h"

#include "framework/revalued_report.h"

namespace varnel::reports {

SpecialAccounts ReadEarningsAccounts(Company& company) {
    return {.retained_earnings = company.GetGLAccountParam("GLRtainEarn", kCompanySection),
            .current_earnings = company.GetGLAccountParam("GLCurntEarn", kCompanySection)};
}

AccountAmounts::AccountAmounts(Company& company, IExchangeRates& rates,
                               const SpecialAccounts& special, const Period& period)
    : company_(company),
      rates_(rates),
      special_(special),
      period_(period),
      home_currency_id_(company.GetCurrencyInfo().CieHomeCurrencyId()) {}

BalanceScope AccountAmounts::ScopeFrom(Date from) const {
    return {from, period_.to, period_.segment_clause, period_.project_ids};
}

BalanceScope AccountAmounts::ScopeOf(const TrialAccount& account) {
    const bool of_the_year =
        company_.GetAccountTypes().Class(account.type) == AccountTypes::kIncomeStatementClass;
    return ScopeFrom(of_the_year ? period_.year_start : kOpenStart);
}

Currency AccountAmounts::ForeignBalance(const TrialAccount& account) {
    return company_.Balances().AccountBalance(account.id, ScopeOf(account), true);
}

Currency AccountAmounts::Revalued(const TrialAccount& account) {
    const BalanceScope scope = ScopeOf(account);
    auto& balances = company_.Balances();
    const auto worth =
        framework::EvaluateAtKeyedRate(company_.GetCurrencyInfo(), rates_,
                                       {.currency_id = account.currency_id,
                                        .booked_rate = {},
                                        .foreign = balances.AccountBalance(account.id, scope, true),
                                        .home = balances.AccountBalance(account.id, scope, false)});
    difference_ += worth.gain;
    return worth.revalued;
}

Currency AccountAmounts::BalanceOf(const TrialAccount& account) {
    auto& balances = company_.Balances();
    if (IsRetainedEarnings(account)) {
        const BalanceScope scope = ScopeFrom(kOpenStart);
        return balances.AccountBalance(account.id, scope, false) +
               balances.EarningsBefore(period_.year_start, scope);
    }
    if (rates_.IExchangeRates_Reevaluate() && account.currency_id != home_currency_id_)
        return Revalued(account);
    return balances.AccountBalance(account.id, ScopeOf(account), false);
}

Currency AccountAmounts::Amount(const TrialAccount& account) {
    const bool carries_difference =
        !IsRetainedEarnings(account) && IsUnrealized(account) && rates_.IExchangeRates_Reevaluate();
    return carries_difference ? -difference_ : BalanceOf(account);
}

std::string AccountAmounts::Key(const TrialAccount& account) const {
    if (IsRetainedEarnings(account) || account.id == special_.current_earnings) return {};
    const std::string id = std::to_string(account.id);
    return IsUnrealized(account) ? "GLUnrealized|" + id : id;
}

}  // namespace varnel::reports
