#pragma once

#include <map>
#include <vector>

#include "framework/cls_report.h"
#include "tests/support/report_run.h"

namespace varnel::test {

/// An account of the chart; its number is its id, its name "Account 1010". Types 1 to 3 are on the
/// balance sheet, 4 and 5 on the income statement. Currency 1 is CAD, 2 USD, 3 EUR, 0 is none.
struct ChartAccount {
    std::int32_t id;
    std::int32_t type = 1;
    std::int32_t currency_id = 0;
    bool inactive = false;
    const char* gifi = "100";
    std::int32_t group_type = 2;
};

/// One of the trial balances, or the ledger by account.
class TrialRun : public ReportRun {
  public:
    using ReportRun::ReportRun;

    void Post(std::int32_t account_id, const char* date, const char* home,
              const char* foreign = "0", std::int32_t currency_id = 1);
    /// The rows of the summary and of GIFI; those of the detail and of the ledger.
    RowSet Accounts() const;
    RowSet AccountsWithLines() const;
    /// Gives the host its rows. Part of a run.
    void Prepare();
    /// Runs the same report object again with each call.
    CollectedBands operator()();

    std::vector<ChartAccount> chart;
    std::vector<std::int32_t> line_currencies;    // Of the host's ledger lines.
    std::map<std::int32_t, const char*> remarks;  // Of lines, numbered from 1.

  private:
    Variant RemarkOf(std::int32_t line) const;
};

inline TrialRun SummaryRun() { return TrialRun(clsReport().TrialBalanceSummary()); }
inline TrialRun DetailRun(bool hide_inactive = false) {
    return TrialRun(clsReport().TrialBalanceDetail(hide_inactive));
}
inline TrialRun GifiRun() { return TrialRun(clsReport().GIFIReport()); }
inline TrialRun LedgerRun() { return TrialRun(clsReport().GeneralLedgerByAccount()); }

}  // namespace varnel::test
