#pragma once

#include <string>
#include <vector>

#include "framework/cls_report.h"
#include "tests/support/collected_bands.h"
#include "tests/support/memory_host.h"

namespace varnel::test {

/// A row of the unrealized report's query: what lines of one account, currency and rate add up to.
struct ForeignRow {
    std::int32_t account_id = 1'060;
    std::int32_t currency_id = 2;
    const char* foreign = "0";
    const char* home = "0";
    const char* booked_rate = "1.25";
};

/// Account numbers are the ids; currency 1 is CAD, 2 USD and 3 EUR.
RowSet ForeignRows(const std::vector<ForeignRow>& rows);

/// The unrealized report of a host that a test may change. Home currency 1 is CAD; 2 is USD at
/// 1.3725 and 3 is EUR at 1.47, from 2025-01-01; accounts are 1060, 1065 and 1200.
class UnrealizedRun {
  public:
    UnrealizedRun();
    /// Runs the same report object again with each call.
    CollectedBands operator()(const std::vector<ForeignRow>& rows);
    IExchangeRates& Rates() { return dynamic_cast<IExchangeRates&>(*report); }

    std::shared_ptr<MemoryHost> host = std::make_shared<MemoryHost>();
    std::shared_ptr<IReport> report = clsReport().UnRealExchProfitLoss();
};

}  // namespace varnel::test
