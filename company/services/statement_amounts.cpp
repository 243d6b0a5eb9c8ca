#include "company/services/statement_amounts.h"

#include "host/control_accounts.h"

namespace varnel::company {

StatementAmounts::StatementAmounts(BalanceService& ledger, CompanyAccounts& accounts,
                                   Company& company, const BalanceScope& scope,
                                   IExchangeRates& rates)
    : ledger_(ledger),
      accounts_(accounts),
      company_(company),
      scope_(scope),
      rates_(rates),
      revalues_(rates.IExchangeRates_Reevaluate() &&
                company.GetCurrencyInfo().CieIsForeignCurrencyUsed()) {}

Currency StatementAmounts::Of(std::int32_t account_id) {
    Currency amount = ledger_.AccountBalance(account_id, scope_, false) + Earnings(account_id);
    if (!revalues_) return amount;
    if (const auto foreign = accounts_.AsForeign(account_id)) amount += GainOf(*foreign);
    return amount;
}

// The two roles may be one account's, which then carries both. Earnings to the last date are those
// before the day after it: the sums of an open-start scope that the statement asks for anyway.
Currency StatementAmounts::Earnings(std::int32_t account_id) {
    const Date year_start = company_.FiscalYearStart(scope_.to);
    Currency earnings;
    if (account_id == company_.GetGLAccountParam("GLRtainEarn", kCompanySection))
        earnings += ledger_.EarningsBefore(year_start, scope_);
    if (account_id == company_.GetGLAccountParam("GLCurntEarn", kCompanySection)) {
        earnings += ledger_.EarningsBefore(scope_.to + 1, scope_);
        earnings -= ledger_.EarningsBefore(year_start, scope_);
        if (revalues_) earnings -= GainOfBalanceSheet();
    }
    return earnings;
}

// Without a balance there is nothing to revalue, and a currency that is no longer dealt in needs no
// rate.
Currency StatementAmounts::GainOf(const CompanyAccounts::ForeignAccount& account) {
    const Currency foreign = ledger_.AccountBalance(account.id, scope_, true);
    const Currency home = ledger_.AccountBalance(account.id, scope_, false);
    if (foreign.IsZero() && home.IsZero()) return {};
    if (ControlAccounts(company_).Holds(account.id, account.currency_id)) return {};
    constexpr Rate kNotBooked;
    const Currency worth = company_.GetCurrencyInfo().EvaluateValueWithExchangeRate(
        kNotBooked, account.currency_id, foreign, rates_);
    return worth - home;
}

Currency StatementAmounts::GainOfBalanceSheet() {
    Currency gain;
    for (const auto& account : accounts_.ForeignOnBalanceSheet()) gain += GainOf(account);
    return gain;
}

}  // namespace varnel::company
