#pragma once

#include <optional>
#include <string>

#include "reports/statements/comparison_period.h"
#include "reports/statements/income_statement_report.h"

namespace varnel::reports {

/// Comparative income statement: the income statement with the same days a year earlier, or with
/// the budget of the period, beside it, and how far the period is from that in amount and percent.
///
/// Late-bound it has, besides those of the income statement, the properties `IsBudgetComparative`,
/// `NoHeaders` (hides the column captions), and `CumulativeDateFrom` and `CumulativeDateTo`, other
/// names of the cumulative period.
class dsrComparativeIncomeStatement final : public IncomeStatementReport {
  public:
    dsrComparativeIncomeStatement();

    std::string IExcelAddInExport_ExcelAddInTemplate() override {
        return is_budget_ ? "ComparativeIncomeStatementBudget" : "ComparativeIncomeStatement";
    }
    bool IReport_NoHeaders() override { return no_headers_; }

    bool IsBudgetComparative() const { return is_budget_; }
    void IsBudgetComparative(bool is_budget);
    void NoHeaders(bool hide) { no_headers_ = hide; }

  protected:
    Sides AmountsOf(const StatementRow& row) override;
    std::string ComparisonKey(std::int32_t account_id) const override;
    void SetPeriods() override;
    void SetPageHeader() override;

  private:
    void SetComparativeDateFromDateTo();
    void AlignPageHeaderControls();
    Currency Comparison(std::int32_t account_id);

    bool is_budget_ = false;
    bool no_headers_ = false;
    /// None when it could not be worked out.
    std::optional<BalanceScope> comparison_;
};

}  // namespace varnel::reports
