#pragma once

#include <string>
#include <vector>

#include "framework/cls_report.h"
#include "tests/support/report_run.h"

namespace varnel::test {

/// A ledger line as the detail's query gives it.
struct ForeignLine {
    Variant foreign;
    Variant home;
    Variant date = "2025-01-15";
    Variant description = "Sale";
    Variant source = "INV";
    Variant source_key = 12;
};

/// A line of USD, "100" in it and "130" in home currency.
inline ForeignLine Line(const char* foreign, const char* home) {
    return {Currency::Parse(foreign), Currency::Parse(home)};
}

/// A row of the balance brought forward.
struct BalanceRow {
    const char* foreign;
    const char* home;
    Variant currency_id = 2;
    const char* booked_rate = "1.25";
};

inline constexpr const char* kBalanceStatement = "SUM(ForeignAmnt)";
inline constexpr const char* kLinesStatement = "ForeignAmnt As AcctBalForeign, DetAmnt";

RowSet LineRows(const std::vector<ForeignLine>& lines);
RowSet BalanceRows(const std::vector<BalanceRow>& rows);

/// The unrealized detail of account 1060, "1060 - Bank USD", in USD at 1.3725 from 2025-01-01.
/// Nothing is brought forward unless the test says so.
class DetailRun : public ReportRun {
  public:
    DetailRun();
    /// Runs the same report object again with each call.
    CollectedBands operator()(const std::vector<ForeignLine>& lines);
    void Forward(const std::vector<BalanceRow>& rows);
    /// The statements of that kind so far, with their parameters.
    std::vector<RecordedCommand> Asked(const std::string& part) const;
    BandedReport& Designer() { return *report->IReport_ReportDesigner(); }
};

/// "foreign home revalued gain" of each line.
std::vector<std::string> DetailFigures(const CollectedBands& bands);
/// The same of the account header, or of a line of the report footer: "Period" or "Closing". Empty
/// when there is no such band.
std::string ForwardFigures(const CollectedBands& bands);
std::string FooterFigures(const CollectedBands& bands, const std::string& line);

}  // namespace varnel::test
