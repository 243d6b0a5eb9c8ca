#pragma once

#include "cli/report_table.h"
#include "cli/run_settings.h"
#include "host/company.h"
#include "host/report.h"

namespace varnel::cli {

/// The second period of a statement. Both days included.
struct CumulativePeriod {
    Date from, to;
};

/// What the settings leave out is the fiscal year of the last day, up to that day. A UsageError for
/// a period that ends before it starts.
CumulativePeriod CumulativePeriodOf(const RunSettings& settings, Company& company);

/// Puts the days that the settings give into the report's properties; a report that has them finds
/// the others by itself.
void PutCumulativePeriod(IReport& report, const ReportEntry& entry, Company& company,
                         const RunSettings& settings);

}  // namespace varnel::cli
