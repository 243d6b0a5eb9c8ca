#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/report.h"
#include "tests/support/collected_bands.h"
#include "tests/support/memory_host.h"

namespace varnel::test {

inline constexpr std::int32_t kRetainedEarnings = 3'100;
inline constexpr std::int32_t kCurrentEarnings = 3'200;
inline constexpr std::int32_t kUnrealized = 5'900;

/// A report of accounts with a host that a test may change. The period is 2025-02-01 to 2025-03-31,
/// fiscal years begin in January; USD (2) is at 1.2345 and EUR (3) at 1.5555.
class ReportRun {
  public:
    explicit ReportRun(std::shared_ptr<IReport> tried);

    void Post(std::int32_t account_id, const char* date, const char* home,
              const char* foreign = "0");
    void Revalue();
    void FilterSegments(const std::string& ids, bool also_none = false);
    void Filter(const std::string& filter, const std::shared_ptr<FilterTool>& tool = nullptr);
    /// Through the options dialog.
    void IncludeZeroBalances();
    /// Of the run before.
    const RecordedCommand& Command() const { return *host->database.Commands().back(); }

    std::shared_ptr<MemoryHost> host = std::make_shared<MemoryHost>();
    std::shared_ptr<IReport> report;
    Date from = Date::ParseIso("2025-02-01");
    Date to = Date::ParseIso("2025-03-31");
};

/// What is seen of those controls in each band of the section, as "1010|200.00|".
std::vector<std::string> Shown(const CollectedBands& bands, const std::string& section,
                               const std::vector<std::string>& controls);

}  // namespace varnel::test
