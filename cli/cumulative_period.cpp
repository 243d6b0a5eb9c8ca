#include "cli/cumulative_period.h"

#include "cli/errors.h"

namespace varnel::cli {

CumulativePeriod CumulativePeriodOf(const RunSettings& settings, Company& company) {
    const auto& [given_from, given_to] = settings.cumulative;
    const Date from = given_from ? *given_from : company.FiscalYearStart(settings.to);
    const Date to = given_to.value_or(settings.to);
    if (to < from)
        throw UsageError("the cumulative period ends before it starts: from " + from.ToIso() +
                         " to " + to.ToIso() +
                         "; left out, --cumulative-from is the first day of the fiscal year of "
                         "--to, and --cumulative-to is --to");
    return {from, to};
}

void PutCumulativePeriod(IReport& report, const ReportEntry& entry, Company& company,
                         const RunSettings& settings) {
    if (entry.cumulative_from_property.empty()) return;
    CumulativePeriodOf(settings, company);
    const auto& [from, to] = settings.cumulative;
    const auto designed = report.IReport_ReportDesigner();
    if (from) designed->Put(entry.cumulative_from_property, *from);
    if (to) designed->Put(entry.cumulative_to_property, *to);
}

}  // namespace varnel::cli
