#include "reports/trial/trial_report.h"

namespace varnel::reports {

using namespace framework;

TrialReport::TrialReport(const Layout& layout, const Facts& facts)
    : ReportBase(layout, facts),
      SegmentFilter(Members()),
      FilterableReport(Members()),
      RevaluedReport(Members()) {}

void TrialReport::IReport_Initialize() {
    Guard("IReport_Initialize", [&] {
        ReadHomeCurrency();
        Mark(), earnings_ = ReadEarningsAccounts(CurrentCompany());
    });
}

void TrialReport::StartAmounts(const AccountAmounts::Period& period) {
    Mark(), earnings_ = ReadEarningsAccounts(CurrentCompany());
    Mark(), amounts_.emplace(CurrentCompany(), *this, earnings_, period);
}

Date TrialReport::StartOfYearOrPeriod() {
    const bool from_first_date = (Mark(), CurrentCompany().PeriodTest(DateFrom(), DateTo()));
    return from_first_date ? DateFrom() : (Mark(), FiscalYearStart());
}

}  // namespace varnel::reports
