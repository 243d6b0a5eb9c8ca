#pragma once

#include <memory>

#include "cli/run_request.h"
#include "cli/run_settings.h"
#include "company/company_host.h"
#include "host/report.h"

namespace varnel::cli {

/// Gives a new report its application, period, filters and properties, as its host does. A
/// UsageError for segments and properties that there are not.
void ConfigureReport(IReport& report, const std::shared_ptr<company::CompanyHost>& host,
                     const RunRequest& request, const RunSettings& settings);

}  // namespace varnel::cli
