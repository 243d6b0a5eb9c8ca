#pragma once

#include <cstdint>
#include <string_view>

#include "company/texts/texts.h"

namespace varnel::company {

/// The caption of an income-statement section: 4 revenue, 5 expenses, 9 other items. Empty for
/// another number.
std::string_view StatementCaption(std::int32_t section, Language language);

/// What people call a database column ("DetDate" is "Date"); empty for a column without a caption.
/// The name may be qualified ("GLAcct.Descr") and ignores case.
std::string_view ColumnCaption(std::string_view column, Language language);

/// The word after a descending sort key.
std::string_view DescendingWord(Language language);

}  // namespace varnel::company
