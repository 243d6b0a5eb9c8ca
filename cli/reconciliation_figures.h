#pragma once

#include "cli/report_table.h"
#include "cli/run_request.h"
#include "cli/run_settings.h"
#include "company/company_host.h"
#include "host/report.h"

namespace varnel::cli {

/// A UsageError when a property is set that a bank reconciliation is given by the command.
void RefuseFigures(const ReportEntry& entry, const RunSettings& settings);

/// Gives a bank reconciliation what it is about and its amounts; nothing to other reports. The
/// report has its application and, unless it is a saved one, its account.
///
/// A saved one works its amounts out itself. For the one in progress the ending balance is the
/// given one, outstanding are the lines that are not ticked, of the ledger or of the given rows,
/// and the difference is what then is left of the ledger's balance. A UsageError for a saved one
/// that there is not, and for rows that cannot be read.
void PutReconciliation(IReport& report, const ReportEntry& entry, company::CompanyHost& host,
                       const RunRequest& request, const RunSettings& settings);

}  // namespace varnel::cli
