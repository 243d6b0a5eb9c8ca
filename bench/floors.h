#pragma once

#include <cstdint>
#include <string>

namespace varnel::bench {

/// Lines that the general journal of the whole company prints.
std::int64_t CountJournalLines(const std::string& company);

/// Steps through the journal's statement with the bare database library and reads every column.
void ReadJournal(const std::string& company);

/// Reads likewise and puts each line's cells into pages of 50 lines with our own PDF writer: no
/// engine.
void WriteJournalPages(const std::string& company, const std::string& file);

/// The same with cairo.
void WriteJournalPagesWithCairo(const std::string& company, const std::string& file);

}  // namespace varnel::bench
