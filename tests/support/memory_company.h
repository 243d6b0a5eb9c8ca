#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/company.h"
#include "tests/support/host_calls.h"
#include "tests/support/memory_currency_info.h"
#include "tests/support/memory_database.h"

namespace varnel::test {

struct LedgerLine {
    std::int32_t account_id;
    Date date;
    Currency home;
    Currency foreign;
    std::int32_t project_id = 0;
    std::int32_t segment_id = 0;  // 0 is none.
};

struct BudgetPeriod {
    std::int32_t account_id;
    Date from, to;
    Currency amount;
};

/// The company of a `MemoryHost`, with all its services. Everything is a public member that a test
/// fills; the balances are sums over `ledger`.
class MemoryCompany final : public Company,
                            public BalanceService,
                            public BudgetService,
                            public AccountTypes,
                            public ChartOfAccounts,
                            public ReconciliationHistory {
  public:
    MemoryCompany(HostCalls& calls, MemoryDatabase& database, Formats& formats)
        : currency_info(calls, formats), calls_(calls), database_(database) {}

    std::string name = "Small Company";
    std::map<std::string, std::string, std::less<>> settings;
    std::map<std::string, std::int32_t, std::less<>> account_params;
    std::vector<Date> fiscal_year_starts;  // Ascending.
    std::optional<Date> item_adjustment_start;
    bool uses_projects = false;
    std::map<std::int32_t, std::int32_t> type_classes{{1, 1}, {2, 1}, {3, 1}, {4, 2}, {5, 2}};
    std::string additional_income_types = "-1";
    std::map<std::int32_t, std::int32_t> account_types;
    /// Of accounts that have one of their own.
    std::map<std::int32_t, std::int32_t> account_currencies;
    std::string other_revalued_account_ids = "-1";
    std::vector<LedgerLine> ledger;
    /// Whether a line fits a segment clause, which is SQL; every line does by default.
    std::function<bool(const LedgerLine& line, const std::string& clause)> in_segments;
    std::vector<BudgetPeriod> budgets;
    MemoryCurrencyInfo currency_info;

    std::string Name() override;
    std::string GetSetting(std::string_view setting, std::string_view default_text,
                           const ObjectRef& scope, std::int32_t index) override;
    std::int32_t GetGLAccountParam(std::string_view param, std::string_view section) override;
    Date FiscalYearStart(Date date) override;
    bool PeriodTest(Date from, Date to) override;
    std::optional<Date> ItemAdjustmentStart() override;
    bool UsesProjects() override;
    CurrencyInfo& GetCurrencyInfo() override;
    BalanceService& Balances() override;
    BudgetService& Budgets() override;
    AccountTypes& GetAccountTypes() override;
    ChartOfAccounts& Accounts() override;
    ReconciliationHistory& Reconciliations() override;

    Currency AccountBalance(std::int32_t account_id, const BalanceScope& scope,
                            bool in_foreign_currency) override;
    Currency EarningsBefore(Date date, const BalanceScope& scope) override;
    Currency StatementBalance(std::int32_t account_id, const BalanceScope& scope,
                              IExchangeRates& rates) override;
    void BeginRun() override;
    Currency GetAcctBudgetRange(std::int32_t account_id, Date from, Date to) override;
    std::int32_t Class(std::int32_t account_type) override;
    /// "Section 4" for type 4.
    std::string Caption(std::int32_t account_type, std::int32_t variant) override;
    std::string AdditionalIncomeTypes() override;
    std::int32_t CurrencyOf(std::int32_t account_id) override;
    std::string OtherRevaluedAccountIds() override;
    /// The rows that the database answers to a statement with "BankConcilHistory".
    std::shared_ptr<Recordset> OpenRecords() override;

  private:
    bool Takes(const BalanceScope& scope, const LedgerLine& line) const;
    bool IsIncomeStatement(std::int32_t account_id);
    /// What revaluation adds to the account's home balance.
    Currency GainOf(std::int32_t account_id, const BalanceScope& scope, IExchangeRates& rates);
    Currency GainOfBalanceSheet(const BalanceScope& scope, IExchangeRates& rates);
    HostCalls& calls_;
    MemoryDatabase& database_;
};

}  // namespace varnel::test
