#pragma once

#include <string>
#include <vector>

#include "framework/cls_report.h"
#include "tests/support/collected_bands.h"
#include "tests/support/memory_host.h"

namespace varnel::test {

/// An account of the chart; its number is its id, its name "Account 1010". Types 1 to 3 are on the
/// balance sheet, 4 and 5 on the income statement. Currency 1 is CAD, 2 USD, 3 EUR, 0 is none.
struct ChartAccount {
    std::int32_t id;
    std::int32_t type = 1;
    std::int32_t currency_id = 0;
    bool inactive = false;
    const char* gifi = "100";
};

inline constexpr std::int32_t kRetainedEarnings = 3'100;
inline constexpr std::int32_t kCurrentEarnings = 3'200;
inline constexpr std::int32_t kUnrealized = 5'900;

/// One of the three reports with a host that a test may change. The period is 2025-02-01 to
/// 2025-03-31, fiscal years begin in January; USD is at 1.2345 and EUR at 1.5555.
class TrialRun {
  public:
    explicit TrialRun(std::shared_ptr<IReport> tried);

    void Post(std::int32_t account_id, const char* date, const char* home,
              const char* foreign = "0", std::int32_t currency_id = 1);
    void Revalue();
    void FilterSegments(const std::string& ids, bool also_none = false);
    void Filter(const std::string& filter, const std::shared_ptr<FilterTool>& tool = nullptr);
    /// Through the options dialog.
    void IncludeZeroBalances();
    /// The rows of the summary and of GIFI; those of the detail.
    RowSet Accounts() const;
    RowSet AccountsWithLines() const;
    /// Gives the host its rows. Part of a run.
    void Prepare();
    /// Runs the same report object again with each call.
    CollectedBands operator()();
    /// Of the run before.
    const RecordedCommand& Command() const { return *host->database.Commands().back(); }

    std::shared_ptr<MemoryHost> host = std::make_shared<MemoryHost>();
    std::shared_ptr<IReport> report;
    std::vector<ChartAccount> chart;
    std::vector<std::int32_t> line_currencies;  // Of the host's ledger lines.
    Date from = Date::ParseIso("2025-02-01");
    Date to = Date::ParseIso("2025-03-31");
};

inline TrialRun SummaryRun() { return TrialRun(clsReport().TrialBalanceSummary()); }
inline TrialRun DetailRun(bool hide_inactive = false) {
    return TrialRun(clsReport().TrialBalanceDetail(hide_inactive));
}
inline TrialRun GifiRun() { return TrialRun(clsReport().GIFIReport()); }

/// What is seen of those controls in each band of the section, as "1010|200.00|".
std::vector<std::string> Shown(const CollectedBands& bands, const std::string& section,
                               const std::vector<std::string>& controls);

}  // namespace varnel::test
