#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "company/services/account_params.h"
#include "company/services/settings.h"
#include "host/company.h"

namespace varnel::company {

/// The chart of accounts, read once.
class CompanyAccounts final : public ChartOfAccounts {
  public:
    /// An account that has a foreign currency of its own.
    struct ForeignAccount {
        std::int32_t id;
        std::int32_t currency_id;
    };

    CompanyAccounts(CompanyDatabase& database, Settings& settings, AccountParams& params,
                    AccountTypes& types)
        : database_(database), settings_(settings), params_(params), types_(types) {}

    std::int32_t CurrencyOf(std::int32_t account_id) override;
    std::string OtherRevaluedAccountIds() override;
    /// Whether an account's results go to the income statement; false for an id that no account
    /// has.
    bool IsIncomeStatement(std::int32_t account_id);
    /// None for an account without a foreign currency of its own and for an id that no account has.
    std::optional<ForeignAccount> AsForeign(std::int32_t account_id);
    /// All of them but those of the income statement, by id.
    std::vector<ForeignAccount> ForeignOnBalanceSheet();

    /// The next question reads the database again.
    void Forget() { accounts_.reset(); }

  private:
    struct Account {
        std::int32_t currency_id;  // 0 when it has none of its own.
        bool income_statement;
    };
    const std::unordered_map<std::int32_t, Account>& All();

    CompanyDatabase& database_;
    Settings& settings_;
    AccountParams& params_;
    AccountTypes& types_;
    std::optional<std::unordered_map<std::int32_t, Account>> accounts_;
};

}  // namespace varnel::company
