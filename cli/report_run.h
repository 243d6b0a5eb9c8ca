#pragma once

#include "cli/console.h"
#include "cli/run_request.h"

namespace varnel::cli {

/// Runs a report as `varnel run` was asked to and returns the exit code. Faults are UsageError,
/// Failure, Interrupted, or what the company, the database and the output raise.
int RunReport(const RunRequest& request, Console& console);

}  // namespace varnel::cli
