#pragma once

#include "company/services/accounts.h"
#include "host/balances.h"

namespace varnel::company {

/// What financial statements print for the accounts of one scope. Made for the question and thrown
/// away: all arguments must outlive it.
class StatementAmounts {
  public:
    /// `ledger` gives the sums of lines that the amounts are made of.
    StatementAmounts(BalanceService& ledger, CompanyAccounts& accounts, Company& company,
                     const BalanceScope& scope, IExchangeRates& rates);

    /// As `BalanceService::StatementBalance`.
    Currency Of(std::int32_t account_id);

  private:
    Currency Earnings(std::int32_t account_id);
    Currency GainOf(const CompanyAccounts::ForeignAccount& account);
    Currency GainOfBalanceSheet();

    BalanceService& ledger_;
    CompanyAccounts& accounts_;
    Company& company_;
    const BalanceScope& scope_;
    IExchangeRates& rates_;
    bool revalues_;
};

}  // namespace varnel::company
