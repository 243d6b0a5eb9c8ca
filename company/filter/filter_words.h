#pragma once

#include <string>
#include <string_view>

#include "company/texts/texts.h"

namespace varnel::company {

/// Criteria as a person reads them: columns become their captions, AND, OR, NOT, IN, BETWEEN, LIKE
/// and IS NULL words of the language, everything else stays as written.
/// "DetDate > '2025-01-01' AND DetRef IS NULL" reads "Date > '2025-01-01' and Reference is empty".
std::string DescribeCriteria(std::string_view criteria, Language language);

/// An ordering as a person reads it: "GLAcct.GLAcctId, DetDate DESC" reads
/// "Account, Date descending".
std::string DescribeOrder(std::string_view ordering, Language language);

/// Whether the criteria name a column of the table, written "Table.Column".
bool NamesTable(std::string_view criteria, std::string_view table);

}  // namespace varnel::company
