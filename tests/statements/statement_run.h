#pragma once

#include <utility>
#include <vector>

#include "framework/cls_report.h"
#include "tests/support/report_run.h"

namespace varnel::test {

/// A row of the chart, "Account 1010" by its id. Type 9 stands for the additional types of the
/// income statement. Currency 1 is CAD, 2 USD, 3 EUR, 0 is none.
struct ChartRow {
    std::int32_t id;  // 0 is none.
    std::int32_t type = 1;
    std::int32_t group_type = 2;
    std::int32_t currency_id = 0;
    bool inactive = false;
};

/// Income statement or balance sheet, alone or with its comparison. Its rows come in the order of
/// the chart; there are no fiscal years that cut a comparison.
class StatementRun : public ReportRun {
  public:
    explicit StatementRun(std::shared_ptr<IReport> tried);

    Object& Properties() { return dynamic_cast<Object&>(*report); }
    /// 100 USD booked at 120 stand on accounts that can gain: 3.45 revalued.
    void HoldForeignAmount();
    /// First and last days, in order.
    void HaveFiscalYears(const std::vector<std::pair<Date, Date>>& years);
    /// Gives the host its rows. Part of a run.
    void Prepare();
    /// Runs the same report object again with each call.
    CollectedBands operator()();
    /// Runs it and tells what its rows show: description, amounts, variance, percent.
    std::vector<std::string> Rows();
    /// Its statement over the chart, whatever was asked after it.
    const RecordedCommand& ChartCommand() const;

    std::vector<ChartRow> chart;
};

inline StatementRun IncomeRun() { return StatementRun(clsReport().IncomeStatement()); }
inline StatementRun ComparativeIncomeRun() {
    return StatementRun(clsReport().ComparativeIncomeStatement());
}
inline StatementRun BudgetRun() {
    return StatementRun(clsReport().ComparativeIncomeStatementBudget());
}
inline StatementRun SheetRun() { return StatementRun(clsReport().BalanceSheet()); }
inline StatementRun ComparativeSheetRun() {
    return StatementRun(clsReport().ComparativeBalanceSheet());
}

/// The bands of the adjusted balance sheet alone (1), or of the journal line in it (2), as if they
/// were a report of their own.
CollectedBands AdjustmentIn(const CollectedBands& bands, int depth);

/// What the rows show in a run that was made.
std::vector<std::string> Rows(const CollectedBands& bands);

}  // namespace varnel::test
