#pragma once

#include <memory>
#include <string>

#include "cli/console.h"
#include "cli/formats.h"
#include "cli/message_log.h"
#include "cli/report_table.h"
#include "cli/run_request.h"
#include "cli/run_settings.h"
#include "company/company_host.h"
#include "engine/document.h"
#include "host/report.h"

namespace varnel::cli {

/// Runs a report as `varnel run` was asked to and returns the exit code. Faults are UsageError,
/// Failure, Interrupted, or what the company, the database and the output raise.
int RunReport(const RunRequest& request, Console& console);

// The steps of it.

/// A UsageError for options that the report does not take, for what it needs and was not told, and
/// for files and terminals that cannot be.
void CheckRequest(const ReportEntry& entry, const RunRequest& request, const RunSettings& settings,
                  const OutputFormat& format);

/// A report that is ready to run, and the host that it asks, which is the running one.
struct PreparedReport {
    std::shared_ptr<company::CompanyHost> host;
    /// Null when a message was shown instead.
    std::shared_ptr<IReport> report;
};

/// Opens the company and makes the report as the request, which was checked, describes it. Messages
/// of the host go to the log, which must outlive it.
PreparedReport PrepareReport(const ReportEntry& entry, const RunRequest& request,
                             const RunSettings& settings, MessageLog& log);

/// What the output of that report is about.
engine::DocumentInfo InfoOf(IReport& report, company::CompanyHost& host,
                            const std::string& language);

/// Tells of the messages that were shown, last of all, and returns the exit code.
int Conclude(const MessageLog& log, bool written, Console& console);

/// A statement that a filter spoils is long: what to look at in it is what the user wrote.
void PointAtFilter(const ReportEntry& entry, const std::string& filter, Console& console);

}  // namespace varnel::cli
