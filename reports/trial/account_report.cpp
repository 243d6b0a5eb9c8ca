#include "reports/trial/account_report.h"

#include <algorithm>

namespace varnel::reports {

using namespace framework;

AccountReport::AccountReport(const Layout& layout, const Facts& facts)
    : ReportBase(layout, facts), SegmentFilter(Members()), FilterableReport(Members()) {}

void AccountReport::IReport_Initialize() {
    Guard("IReport_Initialize", [&] {
        ReadHomeCurrency();
        Mark(), earnings_ = ReadEarningsAccounts(CurrentCompany());
    });
}

void AccountReport::ActiveReport_Terminate() {
    amounts_.reset();
    ReportBase::ActiveReport_Terminate();
}

void AccountReport::StartAmounts(const AccountAmounts::Period& period) {
    Mark(), earnings_ = ReadEarningsAccounts(CurrentCompany());
    Mark(), amounts_.emplace(CurrentCompany(), Rates(), earnings_, period);
}

Date AccountReport::StartOfYearOrPeriod() {
    const bool from_first_date = (Mark(), CurrentCompany().PeriodTest(DateFrom(), DateTo()));
    return from_first_date ? DateFrom() : (Mark(), FiscalYearStart());
}

AccountAmounts::Period AccountReport::ForwardPeriod(const std::string& project_ids) {
    return {.year_start = (Mark(), StartOfYearOrPeriod()),
            .to = std::max(DateFrom() - 1, kOpenStart),
            .segment_clause = SegmentClauseOn("GLDet.ExSegmentId"),
            .project_ids = project_ids};
}

}  // namespace varnel::reports
