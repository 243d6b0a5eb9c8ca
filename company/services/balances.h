#pragma once

#include <memory>
#include <unordered_map>

#include "company/services/accounts.h"
#include "host/balances.h"

namespace varnel::company {

/// Balances from GLDet: one grouped query per scope, kept until it is told to forget. The balance
/// sheet takes two: to its date, and before that date's fiscal year.
class LedgerBalances final : public BalanceService {
  public:
    /// All arguments must outlive it; `company` may still be in the making.
    LedgerBalances(CompanyDatabase& database, CompanyAccounts& accounts, Company& company)
        : database_(database), accounts_(accounts), company_(company) {}

    Currency AccountBalance(std::int32_t account_id, const BalanceScope& scope,
                            bool in_foreign_currency) override;
    /// Takes segment clause and projects from `scope`; its dates make no difference.
    Currency EarningsBefore(Date date, const BalanceScope& scope) override;
    Currency StatementBalance(std::int32_t account_id, const BalanceScope& scope,
                              IExchangeRates& rates) override;
    /// The next question reads the database again.
    void Forget() { scopes_.clear(); }

  private:
    struct Balance {
        Currency home, foreign;
    };
    using Balances = std::unordered_map<std::int32_t, Balance>;
    struct ScopeHash {
        std::size_t operator()(const BalanceScope& scope) const;
    };
    const Balances& BalancesOf(const BalanceScope& scope);
    Balances Read(const BalanceScope& scope);

    CompanyDatabase& database_;
    CompanyAccounts& accounts_;
    Company& company_;
    std::unordered_map<BalanceScope, Balances, ScopeHash> scopes_;
};

}  // namespace varnel::company
