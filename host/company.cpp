#include "host/company.h"

#include "host/missing_service.h"

namespace varnel {

Currency BalanceService::StatementBalance(std::int32_t, const BalanceScope&, IExchangeRates&) {
    RaiseMissingService("balances of statements");
}

BalanceService& Company::Balances() { RaiseMissingService("balances"); }

BudgetService& Company::Budgets() { RaiseMissingService("budgets"); }

AccountTypes& Company::GetAccountTypes() { RaiseMissingService("account types"); }

ChartOfAccounts& Company::Accounts() { RaiseMissingService("a chart of accounts"); }

ReconciliationHistory& Company::Reconciliations() { RaiseMissingService("saved reconciliations"); }

}  // namespace varnel
