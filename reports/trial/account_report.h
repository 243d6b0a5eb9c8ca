#pragma once

#include <optional>
#include <string>

#include "framework/custom_criteria.h"
#include "framework/report_base.h"
#include "framework/segment_filter.h"
#include "reports/trial/account_amounts.h"

namespace varnel::reports {

/// What reports over the balances of accounts share: the interfaces that all of them have besides
/// `IReport`, the company's special accounts and the amounts of a run.
class AccountReport : public framework::ReportBase,
                      public framework::SegmentFilter,
                      public framework::FilterableReport {
  public:
    void IReport_Initialize() override;
    void ActiveReport_Terminate() override;

  protected:
    AccountReport(const Layout& layout, const Facts& facts);

    /// Null in a report that revalues nothing.
    virtual IExchangeRates* Rates() { return nullptr; }

    /// At the start of a run, once its period is known.
    void StartAmounts(const AccountAmounts::Period& period);
    /// Only after StartAmounts.
    AccountAmounts& Amounts() { return *amounts_; }
    const AccountAmounts& Amounts() const { return *amounts_; }

    /// From when income statement accounts count: the start of the fiscal year, or with the period
    /// flag the first date, which then lies in an earlier year than the last.
    Date StartOfYearOrPeriod();
    /// What is brought forward into the report's period: it ends on the day before.
    AccountAmounts::Period ForwardPeriod(const std::string& project_ids = {});

  private:
    framework::EarningsAccounts earnings_;
    std::optional<AccountAmounts> amounts_;
};

}  // namespace varnel::reports
