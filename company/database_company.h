#pragma once

#include "company/formats/locale_formats.h"
#include "company/services/account_params.h"
#include "company/services/account_types.h"
#include "company/services/accounts.h"
#include "company/services/balances.h"
#include "company/services/budgets.h"
#include "company/services/currencies.h"
#include "company/services/currency_info.h"
#include "company/services/fiscal_years.h"
#include "company/services/reconciliations.h"
#include "company/services/settings.h"
#include "host/company.h"

namespace varnel::company {

/// The company that a database holds. What it has read it keeps for the run.
class DatabaseCompany final : public Company {
  public:
    /// All arguments must outlive the company.
    DatabaseCompany(CompanyDatabase& database, Settings& settings, Texts& texts, Language language,
                    LocaleFormats& formats);

    /// Exchange rates to take instead of the company's table.
    void UseRates(std::span<const GivenRate> rates) { currency_info_.UseRates(rates); }

    std::string Name() override;
    std::string GetSetting(std::string_view name, std::string_view default_text,
                           const ObjectRef& scope, std::int32_t index) override;
    std::int32_t GetGLAccountParam(std::string_view name, std::string_view section) override;
    Date FiscalYearStart(Date date) override { return fiscal_years_.StartOf(date); }
    std::optional<Date> ItemAdjustmentStart() override;
    bool UsesProjects() override;
    void BeginRun() override;

    CurrencyInfo& GetCurrencyInfo() override { return currency_info_; }
    BalanceService& Balances() override { return balances_; }
    BudgetService& Budgets() override { return budgets_; }
    AccountTypes& GetAccountTypes() override { return account_types_; }
    ChartOfAccounts& Accounts() override { return accounts_; }
    ReconciliationHistory& Reconciliations() override { return reconciliations_; }

  private:
    CompanyDatabase& database_;
    Settings& settings_;
    std::optional<bool> uses_projects_;
    AccountParams params_;
    FiscalYears fiscal_years_;
    CompanyCurrencies currencies_;
    CompanyCurrencyInfo currency_info_;
    CompanyAccountTypes account_types_;
    CompanyAccounts accounts_;
    LedgerBalances balances_;
    CompanyBudgets budgets_;
    CompanyReconciliations reconciliations_;
};

}  // namespace varnel::company
