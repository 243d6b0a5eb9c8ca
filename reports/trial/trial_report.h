#pragma once

#include "framework/revalued_report.h"
#include "reports/trial/account_report.h"

namespace varnel::reports {

/// Trial balances and the GIFI report: balances of accounts, at the rate of the day when the host
/// asks for it.
class TrialReport : public AccountReport, public framework::RevaluedReport {
  protected:
    TrialReport(const Layout& layout, const Facts& facts)
        : AccountReport(layout, facts), RevaluedReport(Members()) {}

    IExchangeRates* Rates() final { return this; }
};

}  // namespace varnel::reports
