#pragma once

#include <cstdint>
#include <string>

namespace varnel::bench {

/// The general journal's statement for all dates, as SQLite takes it.
extern const char* const kJournalStatement;

/// Steps through the statement with the bare database library and reads every column. Returns the
/// number of rows; error when there is none.
std::int64_t ReadRows(const std::string& company, const std::string& statement);

/// The first column of the statement's first row.
std::string ReadCell(const std::string& company, const std::string& statement);

/// Reads the journal and puts each line's cells into pages of 50 lines with our own PDF writer: no
/// engine.
void WriteJournalPages(const std::string& company, const std::string& file);

/// The same with cairo.
void WriteJournalPagesWithCairo(const std::string& company, const std::string& file);

}  // namespace varnel::bench
