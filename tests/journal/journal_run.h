#pragma once

#include <vector>

#include "framework/cls_report.h"
#include "tests/support/report_run.h"

namespace varnel::test {

/// A ledger line as the journal's query gives it.
struct JournalLine {
    std::int32_t entry = 1;
    Variant amount = Currency();
    Variant foreign = Variant::Null{};
    std::int32_t currency_id = 1;
    const char* currency_code = "CAD";
    Variant date = "2025-01-15";
    Variant description = "Rent";
    Variant reference = "R-1";
    const char* source = "GJ";
    Variant source_key = 11;
    Variant remarks = Variant::Null{};
    Variant project_id = Variant::Null{};
    Variant project = Variant::Null{};
    Variant account_number = "1000";
    Variant account = "Cash";
};

RowSet JournalRows(const std::vector<JournalLine>& lines);

inline JournalLine Amount(const char* amount, std::int32_t entry = 1) {
    JournalLine line;
    line.entry = entry;
    line.amount = Currency::Parse(amount);
    return line;
}

/// A journal, or another report of entries.
class JournalRun : public ReportRun {
  public:
    explicit JournalRun(std::shared_ptr<IReport> tried = clsReport().GeneralJournal());
    /// Runs the same report object again with each call.
    CollectedBands operator()(const std::vector<JournalLine>& lines);
};

}  // namespace varnel::test
