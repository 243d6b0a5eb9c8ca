#pragma once

#include <string>
#include <string_view>

namespace varnel::company {

/// What is wrong with a user's filter, criteria and ordering with a bar between them, and where;
/// empty for a filter that is sound. Reports put both into their statements as they stand, so that
/// each must be whole by itself: parentheses closed where they were opened, literals and quoted
/// names ended, no comment, no semicolon, no parameter. Names and grammar are the database's to
/// judge.
std::string FindFilterFault(std::string_view filter);

}  // namespace varnel::company
