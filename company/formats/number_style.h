#pragma once

#include <cstdint>
#include <string>

namespace varnel::company {

/// How a locale writes numbers. Amounts stand in columns, so four digits are grouped too where a
/// locale would rather not (1.234 in Spanish). Marks are UTF-8 of at most four bytes; digits are 0
/// to 9.
struct NumberStyle {
    std::string decimal_mark = ".";
    std::string group_mark = ",";
    std::string negative_prefix = "-";
    std::string negative_suffix;
    /// Digits of the group before the decimal mark, and of the groups before that (12,34,567 has 3
    /// and 2). 0 is no grouping.
    int first_group = 3;
    int further_groups = 3;
};

/// Appends `units` / 10^`decimals` ("1,234.50" for 123450 and 2); `decimals` is 0 to 18.
void AppendDecimal(const NumberStyle& style, std::uint64_t units, int decimals, bool negative,
                   std::string& out);

}  // namespace varnel::company
