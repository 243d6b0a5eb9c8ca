#pragma once

#include "cli/report_table.h"
#include "cli/run_request.h"
#include "company/company_host.h"
#include "host/report.h"

namespace varnel::cli {

/// A UsageError when the request does not name what the report is about (an account, a currency,
/// projects, a bank statement), when it names a saved reconciliation and more, or when it sets by
/// --property what the report has an option for.
void RequireSubject(const ReportEntry& entry, const RunRequest& request);

/// Puts the internal ids of the account and the currency that the request names into the report's
/// properties. A UsageError for those that the company does not have, and for its own currency.
void PutSubject(IReport& report, const ReportEntry& entry, company::CompanyHost& host,
                const RunRequest& request);

}  // namespace varnel::cli
