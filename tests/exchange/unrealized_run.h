#pragma once

#include <vector>

#include "framework/cls_report.h"
#include "tests/support/report_run.h"

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

/// The unrealized report. USD is at 1.3725 and EUR at 1.47, from 2025-01-01; accounts are 1060,
/// 1065 and 1200.
class UnrealizedRun : public ReportRun {
  public:
    UnrealizedRun();
    /// Runs the same report object again with each call.
    CollectedBands operator()(const std::vector<ForeignRow>& rows);
    IExchangeRates& Rates() { return dynamic_cast<IExchangeRates&>(*report); }
};

}  // namespace varnel::test
