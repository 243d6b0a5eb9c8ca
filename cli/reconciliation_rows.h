#pragma once

#include <memory>
#include <string>

#include "host/currency.h"
#include "host/data_access.h"

namespace varnel::cli {

/// The lines of a bank reconciliation in progress, from a CSV file; "-" is standard input.
///
/// The header names the columns DetDate, DetRef, DetDesc, Conciliated, DetAmnt, ForeignAmnt, Source
/// and ExSrcKeyVal, in any order and case; others are passed over. An empty value is null. A
/// UsageError with file, line and column for what cannot be read.
std::shared_ptr<Recordset> ReadReconciliationRows(const std::string& file);

/// Sums of the lines that are not ticked, both positive.
struct Outstanding {
    Currency deposits;
    Currency withdrawals;
};

/// What the report lists of them as outstanding. Of the foreign amounts or the amounts at home;
/// `rows` stands on its first one afterwards.
Outstanding SumOutstanding(Recordset& rows, bool foreign);

}  // namespace varnel::cli
