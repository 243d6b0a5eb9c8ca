#pragma once

#include <optional>

#include "framework/custom_criteria.h"
#include "framework/report_base.h"
#include "framework/revalued_report.h"
#include "framework/segment_filter.h"
#include "reports/trial/account_amounts.h"

namespace varnel::reports {

/// What the trial balances and the GIFI report share: the interfaces they have besides `IReport`,
/// the company's special accounts and the amounts of a run.
class TrialReport : public framework::ReportBase,
                    public framework::SegmentFilter,
                    public framework::FilterableReport,
                    public framework::RevaluedReport {
  public:
    void IReport_Initialize() override;
    void ActiveReport_Terminate() override { amounts_.reset(); }

  protected:
    TrialReport(const Layout& layout, const Facts& facts);

    /// At the start of a run, once its period is known.
    void StartAmounts(const AccountAmounts::Period& period);
    /// Only after StartAmounts.
    AccountAmounts& Amounts() { return *amounts_; }
    const AccountAmounts& Amounts() const { return *amounts_; }

    /// From when income statement accounts count: the start of the fiscal year, or with the period
    /// flag the first date, which then lies in an earlier year than the last.
    Date StartOfYearOrPeriod();

  private:
    framework::EarningsAccounts earnings_;
    std::optional<AccountAmounts> amounts_;
};

}  // namespace varnel::reports
