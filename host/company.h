#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/balances.h"
#include "host/currency_info.h"
#include "host/data_access.h"
#include "host/date.h"
#include "host/object.h"

namespace varnel {

/// Account types as the company names and classes them.
class AccountTypes {
  public:
    virtual ~AccountTypes() = default;
    static constexpr std::int32_t kIncomeStatementClass = 2;
    /// 2 for income-statement accounts, another number for the rest; error 5 for an unknown type.
    virtual std::int32_t Class(std::int32_t account_type) = 0;
    /// The translated caption of a statement section; 9 is the section of other items.
    virtual std::string Caption(std::int32_t account_type, std::int32_t variant) = 0;
    /// Comma-separated types that the income statement prints as other items; never empty.
    virtual std::string AdditionalIncomeTypes() = 0;
};

/// The chart, as far as reports ask for single accounts.
class ChartOfAccounts {
  public:
    virtual ~ChartOfAccounts() = default;
    /// The account's own currency; the home currency when it has none of its own. Error 5 for an
    /// unknown account.
    virtual std::int32_t CurrencyOf(std::int32_t account_id) = 0;
    /// Ids of further accounts to revalue, comma-separated; "-1" when there is none, so that IN ( )
    /// stays valid.
    virtual std::string OtherRevaluedAccountIds() = 0;
};

/// Budgets, debit positive.
class BudgetService {
  public:
    virtual ~BudgetService() = default;
    virtual Currency GetAcctBudgetRange(std::int32_t account_id, Date from, Date to) = 0;
};

/// Saved bank reconciliations.
class ReconciliationHistory {
  public:
    virtual ~ReconciliationHistory() = default;
    /// All records, with the columns "ID" and "BankConcilDate" at least.
    virtual std::shared_ptr<Recordset> OpenRecords() = 0;
};

/// The current company: settings, accounts with a role, fiscal years and services.
class Company {
  public:
    virtual ~Company() = default;

    virtual std::string Name() = 0;
    /// A setting of the company; `default_text` when it is not set. `scope` and `index` are for
    /// hosts that keep a setting per object; reports pass an empty reference and -1.
    virtual std::string GetSetting(std::string_view name, std::string_view default_text,
                                   const ObjectRef& scope, std::int32_t index) = 0;
    /// First day of the fiscal year that holds the date, else of the last one that begins before
    /// it, else 1 January.
    virtual Date FiscalYearStart(Date date) = 0;
    /// True when `from` lies before the fiscal-year start of `to`.
    virtual bool PeriodTest(Date from, Date to) { return from < FiscalYearStart(to); }
    /// Internal id of the account with that role ("GLRtainEarn", "GLCurntEarn", "CustGLAR",
    /// "SuppGLAP"); 0 when none.
    virtual std::int32_t GetGLAccountParam(std::string_view, std::string_view /*section*/) {
        return 0;
    }
    /// Date from which inventory adjustments are posted to the ledger; none when they never are.
    virtual std::optional<Date> ItemAdjustmentStart() { return std::nullopt; }
    virtual bool UsesProjects() { return false; }

    /// Told when a report is prepared and at the start of every run: a company that keeps what it
    /// has read forgets it, so that the report sees the books as they are.
    virtual void BeginRun() {}

    virtual CurrencyInfo& GetCurrencyInfo() = 0;
    // Services that some reports need. A host that runs only others may leave them: asking for one
    // then raises error 445.
    virtual BalanceService& Balances();
    virtual BudgetService& Budgets();
    virtual AccountTypes& GetAccountTypes();
    virtual ChartOfAccounts& Accounts();
    virtual ReconciliationHistory& Reconciliations();
};

/// Section of the account parameters that reports read.
inline constexpr std::string_view kCompanySection = "Cie";

}  // namespace varnel
