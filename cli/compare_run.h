#pragma once

#include <string>

#include "cli/console.h"
#include "cli/run_request.h"

namespace varnel::cli {

/// What the command line of `varnel compare` says: a run, and what is different in the one that it
/// is compared with; empty where that is not.
struct CompareRequest {
    RunRequest run;
    std::string with_from;
    std::string with_to;
    std::string with_company;
};

/// Runs the report twice, writes to standard output what changed, and returns the exit code. Faults
/// are those of RunReport.
int CompareReport(const CompareRequest& request, Console& console);

/// The names of the reports that compare, with blanks between them.
std::string ComparableReports();

}  // namespace varnel::cli
